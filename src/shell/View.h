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

namespace shell {

// The selected scope item, its list, and the selected row of it. Sends the notifications that go with that, in the
// order of the real console:
//
//   another scope item    expand (once in its life)
//                         to what was selected: select off; to the scope item that was shown: show off
//                         verbs, columns and rows begin anew
//                         add images, show on, select on
//   a row                 to what was selected: select off; verbs begin anew; to the row's node: select on
//   a refresh             refresh; after that the open items below are expanded again, and the selected row is
//                         selected again. That no row of before stands, the node is asked to show itself anew: no
//                         notification of the console is that, and most nodes read nothing for it
//
// A node that was replaced or removed meanwhile is not told that it is no longer selected or shown.
class View {
public:
    // All outlive it. The console is the one that it belongs to.
    View(console::IConsole& console, const Notifier& notifier, ScopeTree& tree, const Observers& observers);

    console::ScopeId scope() const { return scope_; }
    console::ResultId row() const { return row_; }
    // What commands go to: the selected row, else the scope item. Null before the first selection.
    const std::shared_ptr<console::CSnapInItem>& active() const { return active_; }
    // An item of the tree is one wherever it is selected.
    console::DataObjectType activeType() const { return activeType_; }

    // Expands the item's node unless that was done.
    void load(ScopeItem& item);
    void select(ScopeItem& item);
    // 0 goes back to the scope item. False for a row that is not there.
    bool selectRow(console::ResultId id);
    // Refreshes the scope item.
    void refresh();
    // Follows what handlers did to the selected item and row; true when that took anything. Before a refresh only the
    // item counts: the rest is done by the refresh.
    bool settle(bool beforeRefresh);
    // Shows people the changes and tells them what is selected.
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
    // The node of a row of the list; null when the row is not there.
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
    std::shared_ptr<console::CSnapInItem> active_; // the node that was told last that it is selected
    console::DataObjectType activeType_ = console::DataObjectType::scope;
    bool listsScopeChildren_ = false;
    std::pair<console::ScopeId, console::ResultId> told_{};
    std::unordered_map<std::string, SortOrder> orders_; // chosen by the person, by class of the shown node
};

} // namespace shell
