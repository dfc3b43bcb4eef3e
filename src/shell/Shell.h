#pragma once

#include "console/IConsole.h"
#include "shell/MenuItem.h"
#include "shell/Notifier.h"
#include "shell/ScopeTree.h"
#include "shell/Table.h"
#include "shell/Target.h"
#include "shell/TaskQueue.h"
#include "shell/View.h"
#include "shell/ViewHistory.h"

#include <functional>
#include <memory>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace shell {

// A console for a snap-in to live in, without a screen: scope tree, list, verbs, clipboard and history. A host displays
// this state and calls the operations when the user does something.
//
// An operation runs the node's handler, then what the handler asked to be done afterwards (key presses, selections),
// then notifies the observers of what has changed. It returns false when there was nothing to act on, or while another
// operation is running; none of them throws. Everything runs on one thread.
class Shell final : public console::IConsole {
public:
    // All three outlive the shell.
    Shell(SnapIn& snapIn, TaskQueue& tasks, const Observers& observers);
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;
    ~Shell() override;

    // Called once: gives the snap-in its console, shows its root, and runs what that started, such as the login.
    bool start();

    // The tree as displayed.
    const ScopeTree& tree() const { return tree_; }
    const ResultPane& pane() const { return view_.pane; }
    const ColumnHeader& header() const { return view_.header; }
    const VerbStates& verbs() const { return view_.verbs; }
    const ImageStrips& scopeImages() const { return scopeImages_; }
    const ImageStrips& listImages() const { return view_.images; }
    Target selection() const { return {view_.scope(), view_.row()}; }
    bool busy() const { return running_; }
    // Null for a target that does not exist.
    std::shared_ptr<console::CSnapInItem> nodeOf(const Target& target) const;
    // The item of the tree that the node belongs to, or did before a refresh made a new node for it; 0 when there is
    // none.
    console::ScopeId scopeOf(console::CSnapInItem& node) const;

    bool select(console::ScopeId id);
    // An item that can't be read is closed again at once; expanding it reads it again.
    bool expand(console::ScopeId id);
    bool collapse(console::ScopeId id);
    // Opens everything above an item.
    bool reveal(console::ScopeId id);
    // 0 goes back to the scope item.
    bool selectRow(console::ResultId id);
    bool doubleClick(console::ResultId id);
    // The user clicked a title: sorts the list by that column; after another click in the opposite direction, after a
    // third one in its natural order again.
    bool clickColumn(std::int32_t column);
    // Refreshes the selected row, or else the selected scope item.
    bool refresh();
    // Refreshes the selected scope item, whichever row is selected; that row stays selected.
    bool refreshList();
    // Reads from the server again what these items of the tree hold, and the shown list. Those that could not be read
    // before are open afterwards.
    bool reread(const std::vector<console::ScopeId>& items);
    bool back();
    bool forward();
    bool canGoBack() const;
    bool canGoForward() const;

    std::vector<MenuItem> menu(const Target& target);
    // False for an entry that is disabled at this moment.
    bool invoke(std::int32_t commandId, const Target& target);

    // The verbs, for the current selection. Each is carried out only if it is offered.
    bool canRename() const { return offers(console::Verb::rename); }
    bool rename(const wire::WideString& newName);
    bool canCut() const { return offers(console::Verb::cut); }
    bool cut();
    // What is cut and not pasted yet; null for nothing.
    const std::shared_ptr<console::CSnapInItem>& cutNode() const { return clipboard_; }
    // Whether the node stands for what is cut; a refresh makes a new node for it.
    bool isCut(const console::CSnapInItem& node) const;
    // Forgets what is cut with null, or puts back what a paste has taken in vain.
    void setCutNode(std::shared_ptr<console::CSnapInItem> node);
    // Asks the node, so it must not be called while a handler runs.
    bool canPaste();
    bool paste();
    bool canDelete() const { return offers(console::Verb::deleteItem); }
    bool deleteItem();
    // Dragging is cut and paste in one.
    bool canDrop(const Target& source, console::ScopeId target);
    bool drop(const Target& source, console::ScopeId target);

    void sort(std::optional<SortOrder> order);
    // The orders in which lists are shown from now on, each by the class of the item that it belongs to; others are in
    // their natural order.
    void setSortOrders(std::unordered_map<std::string, SortOrder> orders) { view_.setOrders(std::move(orders)); }
    void filter(wire::WideStringView text);
    // See ResultPane::setTopRow.
    void setTopRow(console::ResultId id) { view_.pane.setTopRow(id); }
    // The list as displayed, sorted and filtered. Valid until the list changes.
    Table table() const;
    // Some rows and columns of it, in the order given.
    Table table(std::vector<std::size_t> rows, const std::vector<std::size_t>& columns) const;
    // The next item that contains the text, below the selected one; 0 when there is none. With `load`, items that were
    // never opened are searched as well.
    console::ScopeId find(wire::WideStringView text, bool load);

    // Runs the queued tasks; for hosts that queue tasks themselves.
    bool drain();

    // The owner of the snap-in's dialogs.
    void setMainWindow(platform::WindowHandle window) { mainWindow_ = window; }
    // For automatic column widths; see ColumnHeader.
    void setMeasure(std::function<std::int32_t(wire::WideStringView)> measure) {
        view_.header.measure = std::move(measure);
    }

    // The console as nodes see it.
    console::IConsoleNameSpace* nameSpace() override { return &tree_; }
    console::IResultData* resultData() override { return &view_.pane; }
    console::IHeaderCtrl* headerCtrl() override { return &view_.header; }
    console::Result QueryConsoleVerb(console::IConsoleVerb*& verb) override;
    console::Result QueryScopeImageList(console::IImageList*& images) override;
    // Takes effect when the running handler has returned.
    console::Result SelectScopeItem(console::ScopeId scopeId) override;
    console::Result GetMainWindow(platform::WindowHandle& window) override;

private:
    bool operate(const std::function<bool()>& work);
    void settle();
    void run(const Task& task);
    void commit();
    bool show(console::ScopeId id);
    bool step(console::ScopeId (ViewHistory::*direction)(const ViewHistory::Exists&));
    bool offers(console::Verb verb) const { return view_.active() && verbs().offers(verb); }
    bool accepts(const std::shared_ptr<console::CSnapInItem>& source);
    std::vector<MenuItem> menuOf(const Target& target) const;
    ViewHistory::Exists exists() const;

    SnapIn& snapIn_;
    TaskQueue& tasks_;
    const Observers& observers_;
    Notifier notifier_;
    ScopeTree tree_;
    View view_;
    ImageStrips scopeImages_;
    ViewHistory history_;
    std::shared_ptr<console::CSnapInItem> clipboard_;
    platform::WindowHandle mainWindow_ = 1;
    bool running_ = false;
    bool started_ = false;
};

} // namespace shell
