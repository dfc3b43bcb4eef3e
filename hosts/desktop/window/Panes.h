#pragma once

#include "hosts/desktop/list/FilterBar.h"
#include "hosts/desktop/list/ListView.h"
#include "hosts/desktop/tree/ScopeView.h"
#include "hosts/desktop/tree/TreeSearchBar.h"
#include "hosts/desktop/window/NoticeBar.h"
#include "hosts/desktop/window/PathBar.h"
#include "hosts/desktop/window/UndoBar.h"

#include <QSplitter>

class QLabel;

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
    UndoBar& undoBar() { return *undo_; }
    PathBar& path() { return *path_; }

    // Shows the path of the current list in the tree: "Printers › Berlin".
    void showPath();
    // Why the list is empty, and what the user can do about it.
    [[nodiscard]] QString emptyText() const;
    [[nodiscard]] const QLabel& filterNote() const { return *filterNote_; }
    // Why the displayed list could not be read; empty when it was.
    std::function<QString()> readingFailure;
    // The entries of the Action menu that put something into the displayed list.
    void setCreators(QStringList entries) { creators_ = std::move(entries); }

private:
    QWidget* treeSide();
    QWidget* listSide();

    const Operations& operations_;
    ScopeModel treeModel_;
    ListModel listModel_;
    TreeSearchBar* search_;
    ScopeView* tree_;
    PathBar* path_;
    FilterBar* filter_;
    QLabel* filterNote_; // what is wrong with the filter
    NoticeBar* notice_;
    UndoBar* undo_;
    ListView* list_;
    QStringList creators_;
};

} // namespace desktop
