#pragma once

#include "hosts/desktop/list/FilterBar.h"
#include "hosts/desktop/list/ListView.h"
#include "hosts/desktop/look/ElidedLabel.h"
#include "hosts/desktop/tree/ScopeView.h"
#include "hosts/desktop/tree/TreeSearchBar.h"
#include "hosts/desktop/window/NoticeBar.h"

#include <QSplitter>

namespace desktop {

// The tree on the left and the list on the right, each with its search line above it.
class Panes final : public QSplitter {
public:
    // All outlive it.
    Panes(Operations& operations, shell::Observers& observers, const IconStrips& icons, ViewSettings& settings,
          QWidget* parent);
    ~Panes() override;

    ScopeView& tree() { return *tree_; }
    ListView& list() { return *list_; }
    ListModel& listModel() { return listModel_; }
    FilterBar& filter() { return *filter_; }
    TreeSearchBar& search() { return *search_; }
    NoticeBar& notice() { return *notice_; }

    // Shows the path of the current list in the tree: "Printers › Berlin".
    void showPath();
    // Why the list is empty.
    QString emptyText() const;

private:
    QWidget* treeSide();
    QWidget* listSide();

    const Operations& operations_;
    ScopeModel treeModel_;
    ListModel listModel_;
    TreeSearchBar* search_;
    ScopeView* tree_;
    ElidedLabel* path_;
    FilterBar* filter_;
    NoticeBar* notice_;
    ListView* list_;
};

} // namespace desktop
