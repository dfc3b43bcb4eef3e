#pragma once

#include "console/CSnapInItem.h"
#include "console/ChildKind.h"
#include "console/IConsole.h"
#include "console/IConsoleVerb.h"
#include "console/KeySequence.h"
#include "console/MenuEntry.h"
#include "console/NodeCommand.h"
#include "console/NodeIdentity.h"
#include "platform/Platform.h"

#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace console {

// When a node reads its rows from the server.
enum class RowReading : std::uint8_t {
    never,            // they are the children of the last expansion
    whenShown,        // after the columns are inserted; a refresh shows the rows that were read before
    whenShownOrAgain, // also on a refresh
    onEveryShow       // also when it leaves the screen; before the columns, which depend on what was read
};

// A standard verb and whether the selected node offers it.
struct VerbChoice {
    Verb verb;
    bool offered;
};

// A node's children of one kind, in the order in which they are shown.
template <class Node>
using NodeArray = std::vector<std::shared_ptr<Node>>;

// What all nodes of the tree have in common. A node class derives from CBaseNodeItem and declares only what is specific
// to it: columns, commands, verbs, kinds of children, rows. Everything runs on the console's one thread; the login's
// own thread never calls a node.
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
    // Throws what reading from the server throws; the guard of the node that requested the refresh catches it.
    Result RefreshNode(IConsole& console, ScopeId scopeId, IConsole& consoleForShow) final;

    const wire::WideString& displayName() const final { return m_bstrDisplayName; }
    std::string refreshKey() const override;
    std::optional<std::int64_t> sortValue(std::int32_t /*column*/) const override { return std::nullopt; }
    Result showAnew(IConsole& console) final;

    // Called right after construction for a node whose name comes from the server.
    void setDisplayName(wire::WideString name) { m_bstrDisplayName = std::move(name); }
    // The row of the parent under which the console is to insert this node.
    void setParentRow(ScopeId parent) { scope_.relativeID = parent; }
    // Places this node under its parent, which passes on its row and the component data. A node that is only a row of a
    // list learns its console in no other way.
    void setParent(const NodeBase& parent) {
        setParentRow(parent.scope_.ID);
        componentData_ = parent.componentData_;
    }
    ScopeItemFields& scopeFields() { return scope_; }
    ResultItemFields& resultFields() { return result_; }

    // Fills the children: reads the kinds, and inserts those that were read. Does nothing for a node without kinds.
    virtual Result OnExpand(ExpandCode code, IConsole& console, ScopeId scopeId);
    // Fills the result pane: columns() and rows() if `show` is set, only rows() if `again` is 1, because the columns
    // are already there. A node without columns shows nothing.
    virtual Result OnShow(IConsole& console, bool show, int again);

protected:
    NodeBase(platform::Platform& platform, const NodeIdentity& identity);

    virtual std::span<const Column> columns() const { return {}; }
    // The entries at this moment.
    virtual MenuEntries menu() const { return {}; }
    // The kinds of children, in the order in which they are shown.
    virtual std::vector<ChildKind> childKinds() { return {}; }
    // Whether the tree shows this child of its parent. A child that the tree does not show may still be a row of a
    // list.
    virtual bool standsInTree() const { return true; }
    // The nodes that are the rows of this node's result pane, in order.
    virtual std::vector<NodeBase*> rows() const { return {}; }
    virtual RowReading rowReading() const { return RowReading::never; }
    // Fills what rows() returns. The default reads the kinds of children.
    virtual void readRows();
    // In the order in which they are set. The default offers only Refresh.
    virtual std::span<const VerbChoice> verbs() const;
    // Runs the handler of a menu entry. May throw whatever the client throws: the guard around it reports that, skips
    // the keys and returns Result::notDone. An id that is not one of the class's own has no effect.
    virtual Result runCommand(std::int32_t commandId, CommandOrigin origin);
    // The keys to press after every command that did not throw, whatever its outcome: also after a Cancel, and for an
    // id that is not one of the class's own.
    virtual KeySequence keysAfterCommand(std::int32_t /*commandId*/, CommandOrigin /*origin*/) const { return {}; }
    virtual Result OnSelect(IConsole& console);
    virtual Result OnRename(IConsole& console, const wire::WideString& newName);
    virtual Result OnAddImages(IImageList& images);
    virtual Result OnPaste(CSnapInItem& source);
    virtual Result OnQueryPaste(const CSnapInItem& source);
    virtual Result OnCutOrMove(CSnapInItem& source);

    platform::Platform& platform() const { return platform_; }
    // The component data last passed to Notify, or before that the parent's, and its console; null until then. It is
    // the only one of the console's interfaces that a node keeps.
    IComponentData* componentData() const { return componentData_; }
    IConsole* console() const { return componentData_ != nullptr ? componentData_->console() : nullptr; }
    // Whether the result pane shows this node.
    bool visible() const { return visible_; }
    ScopeId parentRow() const { return scope_.relativeID; }
    ScopeId row() const { return scope_.ID; }

    // For OnExpand. False when there is nothing to do: on a collapse, or without a tree. Otherwise remembers the row
    // and removes the current children.
    bool beginExpand(ExpandCode code, IConsole& console, ScopeId scopeId);
    // Inserts the scope row of a child under this node, unless the tree does not show it.
    void insertChild(IConsole& console, NodeBase& child) const;
    // Inserts a column per entry, with its width.
    static void insertColumns(IConsole& console, std::span<const Column> columns);
    // Empties the result pane and inserts rows().
    void insertRows(IConsole& console) const;
    // Reads the kinds of children. Throws the first failure after reading everything that can be read.
    bool readChildren(CarryOver what);

    // For commands. These do nothing while the node is in no console.
    void removeFromTree();
    void removeFromList();
    // Redraws this node's own row of the list after a change of its state.
    void redrawRow();
    void setResultImage(std::int32_t image) { result_.nImage = image; }
    void setScopeImages(std::int32_t image, std::int32_t openImage) {
        scope_.nImage = image;
        scope_.nOpenImage = openImage;
    }
    // Selects an item of the tree and presses keys there.
    void selectAndPress(ScopeId scopeId, const KeySequence& keys) const;

    // Asks about this node as every destructive command does: caption "Warning", OK and Cancel. True on OK.
    bool confirm(const wire::WideString& question) const;
    platform::Answer messageBox(const wire::WideString& text, const wire::WideString& caption,
                                std::uint32_t style) const;
    int runModal(forms::Form& form) const;
    void press(const KeySequence& keys) const;
    void PressRefreshKey() const;
    void PressTabKey() const;

    // Replaces current by fresh. A new child with the refreshKey of an old one takes over its row in the result pane,
    // so that the row's identity survives; lParam stays the new node, which holds the record just read.
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
    // A node for each record, made as Node(platform, record, more...) and placed under this one.
    template <class Node, class Record, class... More>
    NodeArray<Node> childrenFor(std::vector<Record> records, const More&... more) const {
        NodeArray<Node> nodes;
        nodes.reserve(records.size());
        for (auto& record : records) {
            nodes.push_back(std::make_shared<Node>(platform(), std::move(record), more...));
            nodes.back()->setParent(*this);
        }
        return nodes;
    }
    // Makes a row for each record that was read; rows take over from the previous rows what carries over.
    template <class Node, class Record>
    NodeArray<Node> rowsFor(std::vector<Record> records, NodeArray<Node> before) const {
        replaceChildren(before, childrenFor<Node>(std::move(records)));
        return before;
    }
    // The kind of child with a Node(platform, record, more...) in the array for each record that list(records) returns;
    // list returns false when the server did not answer.
    template <class Record, class Node, class... More>
    ChildKind childrenOf(NodeArray<Node>& array, std::function<bool(std::vector<Record>&)> list, const More&... more) {
        return {.read =
                    [this, &array, list = std::move(list), more...](CarryOver what) {
                        std::vector<Record> records;
                        if (!list(records)) {
                            return false;
                        }
                        replaceChildren(array, childrenFor<Node>(std::move(records), more...), what);
                        return true;
                    },
                .nodes = [&array] { return pointersTo(array); }};
    }
    // The same with a second set of nodes, which are the rows of the list while those of the first are shown in the
    // tree.
    template <class Record, class Node, class... More>
    ChildKind childrenAndRowsOf(NodeArray<Node>& array, NodeArray<Node>& rows,
                                std::function<bool(std::vector<Record>&)> list, const More&... more) {
        return {.read =
                    [this, &array, &rows, list = std::move(list), more...](CarryOver what) {
                        std::vector<Record> records;
                        if (!list(records)) {
                            return false;
                        }
                        replaceChildren(rows, childrenFor<Node>(records, more...), what);
                        replaceChildren(array, childrenFor<Node>(std::move(records), more...), what);
                        return true;
                    },
                .nodes = [&array] { return pointersTo(array); }};
    }
    // Children that the node creates in its constructor.
    static ChildKind fixedChildren(std::vector<NodeBase*> nodes) {
        return {.read = {}, .nodes = [nodes = std::move(nodes)] { return nodes; }};
    }
    // The nodes of some arrays one after the other.
    template <class... Nodes>
    static std::vector<NodeBase*> pointersTo(const Nodes&... arrays) {
        std::vector<NodeBase*> pointers;
        pointers.reserve((std::size(arrays) + ...));
        const auto append = [&pointers](const auto& array) {
            for (const auto& node : array) {
                pointers.push_back(node.get());
            }
        };
        (append(arrays), ...);
        return pointers;
    }

private:
    void takeOver(const NodeBase& old, CarryOver what);
    IConsole* consoleOf(const Notification& notification);
    Result guarded(std::string_view doing, std::uint32_t number, Result ifThrown, const std::function<Result()>& work);
    Result showRows(IConsole& console, bool show, int again);
    ReadKinds insertKinds(IConsole& console, std::span<const ChildKind> kinds);
    Result dispatch(const Notification& notification, IConsole& console);
    Result paste(const Notification& notification, IConsole& console);
    Result refresh(const Notification& notification, IConsole& console);

    platform::Platform& platform_;
    wire::WideString m_bstrDisplayName;
    ScopeItemFields scope_;
    ResultItemFields result_;
    IComponentData* componentData_ = nullptr;
    bool visible_ = false;
};

} // namespace console
