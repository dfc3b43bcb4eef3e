#pragma once

#include "console/CSnapInItem.h"
#include "console/IConsole.h"
#include "console/IConsoleVerb.h"
#include "console/NodeIdentity.h"
#include "platform/Platform.h"

#include <initializer_list>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace console {

// Whether a command or a notification came from the scope tree or from a row of the result pane.
enum class CommandOrigin : std::uint8_t { scope, result };

// A standard verb and whether the selected node offers it.
struct VerbChoice {
    Verb verb;
    bool offered;
};

// A node's children of one kind, in the order in which they stand.
template <class Node>
using NodeArray = std::vector<std::shared_ptr<Node>>;

// What all nodes of the tree have in common. A node class derives from CBaseNodeItem and says only what is its own:
// columns, menu, verbs, rows, how it reads its children, what its commands do. Everything runs on the console's one
// thread.
class NodeBase : public CSnapInItem {
public:
    Result Notify(const Notification& notification) final;
    Result GetScopePaneInfo(ScopeItemFields& item) override;
    Result GetResultViewType(const char16_t*& viewType, std::int32_t& viewOptions) override;
    Result GetResultPaneInfo(ResultItemFields& item) override;
    Result AddMenuItems(IContextMenuCallback& callback, std::int32_t insertionAllowed, DataObjectType type) override;
    Result Command(std::int32_t commandId, DataObjectType type) final;
    Result CreatePropertyPages(DataObjectType type) override;
    Result QueryPagesFor(DataObjectType type) override;
    Result ControlbarNotify(Event event) override;
    Result GetScopeData(ScopeItemFields** out) final;
    Result GetResultData(ResultItemFields** out) final;
    Result FillData(ClipboardFormat format, std::vector<std::uint8_t>& stream) final;
    const char16_t* GetResultPaneColInfo(std::int32_t column) override;
    Result OnContextHelp() override;
    // Throws what reading the server throws: the guard of the node that asked for it stops that.
    Result RefreshNode(IConsole& console, ScopeId scopeId, IConsole& consoleForShow) final;

    const wire::WideString& displayName() const final { return m_bstrDisplayName; }
    std::string refreshKey() const override;

    // A node that gets its name from the server is named right after it is made.
    void setDisplayName(wire::WideString name) { m_bstrDisplayName = std::move(name); }
    // The row of the parent under which the console is to insert this node.
    void setParentRow(ScopeId parent) { scope_.relativeID = parent; }
    // Places this node under its parent, which passes on its row and the console that it stands in. A node that stands
    // only as a row of a list gets to know its console in no other way.
    void setParent(const NodeBase& parent) {
        setParentRow(parent.scope_.ID);
        console_ = parent.console_;
    }
    ScopeItemFields& scopeFields() { return scope_; }
    ResultItemFields& resultFields() { return result_; }

    // Fills the children. The default is Result::ok and nothing.
    virtual Result OnExpand(ExpandCode code, IConsole& console, ScopeId scopeId);
    // Fills the result pane: with `show` columns() and rows(), with `again` 1 rows() alone, since the columns stand
    // already. A node without columns shows nothing.
    virtual Result OnShow(IConsole& console, bool show, int again);

protected:
    NodeBase(platform::Platform& platform, const NodeIdentity& identity);

    virtual std::span<const Column> columns() const { return {}; }
    virtual std::span<const MenuEntry> menu() const { return {}; }
    // The nodes that stand as rows in this node's result pane, in order.
    virtual std::vector<NodeBase*> rows() const { return {}; }
    // For a node that reads the server whenever it is shown, and not when it is expanded: fills what rows() gives, once
    // the columns stand. Leaves no rows when it throws.
    virtual void readRows() {}
    // In the order in which they are set. The default offers Refresh and nothing else.
    virtual std::span<const VerbChoice> verbs() const;
    // Runs the handler of a menu entry. May throw whatever the client throws: the guard around it reports it, skips the
    // closing F5 and answers Result::notDone. A number that is not the class's own has no effect.
    virtual Result runCommand(std::int32_t commandId, CommandOrigin origin);
    // How often F5 is pressed after a command that did not fail.
    virtual int refreshesAfterCommand() const { return 0; }
    virtual Result OnSelect(IConsole& console);
    virtual Result OnRename(IConsole& console, const wire::WideString& newName);
    virtual Result OnAddImages(IImageList& images);
    virtual Result OnPaste(CSnapInItem& source);
    virtual Result OnQueryPaste(const CSnapInItem& source);
    virtual Result OnCutOrMove(CSnapInItem& source);

    platform::Platform& platform() const { return platform_; }
    // The component data and its console as Notify saw them last, the console also as OnExpand did; null before.
    IComponentData* componentData() const { return componentData_; }
    IConsole* console() const { return console_; }
    // Whether the result pane shows this node.
    bool visible() const { return visible_; }
    ScopeId parentRow() const { return scope_.relativeID; }
    ScopeId row() const { return scope_.ID; }

    // For OnExpand. False when there is nothing to do (a collapse). Else remembers row and console and removes the
    // children that stand.
    bool beginExpand(ExpandCode code, IConsole& console, ScopeId scopeId);
    // Inserts the scope row of a child under this node.
    void insertChild(IConsole& console, NodeBase& child) const;
    // Inserts a column per entry, with its width.
    static void insertColumns(IConsole& console, std::span<const Column> columns);
    // Empties the result pane and inserts rows().
    void insertRows(IConsole& console) const;

    // Asks as every destructive command does: caption "Warning", OK and Cancel. True on OK.
    bool confirm(const wire::WideString& question) const;
    platform::Answer messageBox(const wire::WideString& text, const wire::WideString& caption,
                                std::uint32_t style) const;
    int runModal(forms::Form& form) const;
    void press(std::initializer_list<platform::Key> keys) const;
    void PressRefreshKey() const;
    void PressTabKey() const;

    // How much of an old child a new one takes over.
    enum class CarryOver : std::uint8_t { resultRow, resultRowAndScopeId };

    // Puts fresh in the place of current. A new child with the refreshKey of an old one takes over its row in the
    // result pane, so that the row's identity survives; lParam stays the new node, which holds the record just read.
    template <class Node>
    static void replaceChildren(NodeArray<Node>& current, NodeArray<Node> fresh,
                                CarryOver what = CarryOver::resultRow) {
        std::unordered_map<std::string, Node*> old;
        for (const auto& child : current) {
            old.try_emplace(child->refreshKey(), child.get());
        }
        for (const auto& child : fresh) {
            if (const auto found = old.find(child->refreshKey()); found != old.end()) {
                child->takeOver(*found->second, what);
            }
        }
        current = std::move(fresh);
    }
    // A row for each record that was read, with what it takes over from the rows of before.
    template <class Node, class Record>
    NodeArray<Node> rowsFor(std::vector<Record> records, NodeArray<Node> before) {
        NodeArray<Node> fresh;
        fresh.reserve(records.size());
        for (auto& record : records) {
            fresh.push_back(std::make_shared<Node>(platform(), std::move(record)));
            fresh.back()->setParent(*this);
        }
        replaceChildren(before, std::move(fresh));
        return before;
    }

private:
    void takeOver(const NodeBase& old, CarryOver what);
    IConsole* consoleOf(const Notification& notification);
    Result dispatch(const Notification& notification, IConsole& console);
    Result paste(const Notification& notification, IConsole& console);
    Result refresh(const Notification& notification, IConsole& console);

    platform::Platform& platform_;
    wire::WideString m_bstrDisplayName;
    ScopeItemFields scope_;
    ResultItemFields result_;
    IComponentData* componentData_ = nullptr;
    IConsole* console_ = nullptr;
    bool visible_ = false;
};

} // namespace console
