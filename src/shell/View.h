#pragma once

#include "shell/ColumnHeader.h"
#include "shell/ImageStrips.h"
#include "shell/Notifier.h"
#include "shell/ResultPane.h"
#include "shell/ScopeTree.h"
#include "shell/VerbStates.h"

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>

namespace shell {

// The selected scope item, its list, and the selected row of it. Sends the notifications that go with that, in the
// order of the real console:
//
//   another scope item    expand (once in its life; again by Shell::expand if the children could not be read)
//                         to what was selected: select off; to the scope item that was shown: show off
//                         verbs, columns and rows are reset
//                         add images, show on, select on
//   a row                 to what was selected: select off; verbs are reset; to the row's node: select on
//   a refresh             refresh; after that the open items below are expanded again, and the selected row is
//                         selected again. So that no outdated row remains, the node is asked to show itself again: no
//                         notification of the console does that, and most nodes read nothing for it
//
// A node that was replaced or removed in the meantime is not notified that it is no longer selected or shown.
class View {
public:
    // All outlive it. The console is the one that it belongs to.
    View(console::IConsole& console, const Notifier& notifier, ScopeTree& tree, const Observers& observers);

    console::ScopeId scope() const { return scope_; }
    console::ResultId row() const { return row_; }
    // What commands go to: the selected row, else the scope item. Null before the first selection.
    const std::shared_ptr<console::CSnapInItem>& active() const { return active_; }
    // An item of the tree counts as scope in whichever pane it is selected.
    console::DataObjectType activeType() const { return activeType_; }

    // Expands the item's node unless that has been done.
    void load(ScopeItem& item);
    void select(ScopeItem& item);
    // 0 goes back to the scope item. False for a row that does not exist.
    bool selectRow(console::ResultId id);
    // Refreshes the scope item.
    void refresh();
    // Adapts the selection to what handlers did to the selected item and row; true when that changed anything. Before a
    // refresh only the item matters: the refresh does the rest.
    bool settle(bool beforeRefresh);
    // See Shell::setSortOrders.
    void setOrders(std::unordered_map<std::string, SortOrder> orders) { orders_ = std::move(orders); }
    // Displays the changes and reports the selection.
    void commit();

    ResultPane pane;
    ColumnHeader header;
    VerbStates verbs;
    ImageStrips images;

private:
    void show(ScopeItem& item);
    void showAnew();
    void leaveActive();
    void activate(std::shared_ptr<console::CSnapInItem> node, console::DataObjectType type);
    // The node of a row of the list; null when the row does not exist.
    std::shared_ptr<console::CSnapInItem> nodeOf(console::ResultId id);
    bool settleRow();
    std::vector<Row> scopeRows();

    console::IConsole& console_;
    const Notifier& notifier_;
    ScopeTree& tree_;
    const Observers& observers_;
    console::ScopeId scope_ = 0;
    console::ResultId row_ = 0;
    std::shared_ptr<console::CSnapInItem> shown_;  // the node of scope_ that fills the list
    std::shared_ptr<console::CSnapInItem> active_; // the node last notified that it is selected
    console::DataObjectType activeType_ = console::DataObjectType::scope;
    bool listsScopeChildren_ = false;
    std::pair<console::ScopeId, console::ResultId> told_{};
    std::unordered_map<std::string, SortOrder> orders_; // chosen by the user, by class of the shown node
};

} // namespace shell
