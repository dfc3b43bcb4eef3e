#pragma once

#include "hosts/desktop/list/ColumnLayout.h"
#include "hosts/desktop/list/ListModel.h"
#include "hosts/desktop/list/RowSelection.h"

#include <QTreeView>

#include <optional>

namespace desktop {

// The list pane: passes user input to the console and shows what the console lists; the rows in view keep their
// position when the list is read again. Several rows can be selected, to copy them; the console knows of one of them.
class ListView final : public QTreeView, private shell::ShellObserver {
public:
    // All outlive it. Made after the model, so that the model learns of a change first.
    ListView(Operations& operations, shell::Observers& observers, ListModel& model, ViewSettings& settings,
             QWidget* parent = nullptr);
    ~ListView() override;

    ColumnLayout& columns() { return columns_; }
    void renameCurrent() { edit(currentIndex().siblingAtColumn(0)); }

    [[nodiscard]] const RowSelection& selectedRows() const { return selectedRows_; }
    // The selected rows as they are shown: the visible columns in the order in which the user has arranged them. Valid
    // until the list changes.
    [[nodiscard]] shell::Table selectedTable() const;

    // Called for a row that is to be opened and stands for nothing in the tree; it is already selected.
    std::function<void(const shell::Target&)> onOpen;
    // Called when a menu is requested by mouse or key, with its place on the screen; the row is already selected. Row
    // 0: the list itself.
    std::function<void(const shell::Target&, const QPoint&)> onMenu;
    // Returns why the list is empty; called only then.
    std::function<QString()> emptyText;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // A row and its position on the screen.
    struct Anchor {
        console::ResultId id = 0;
        int top = 0;
    };

    void selectionChanged() override;
    using QTreeView::selectionChanged;
    void cutChanged() override { viewport()->update(); }
    void columnsChanged() override;
    using QTreeView::rowsInserted;
    void rowsInserted(std::size_t first, std::size_t count) override;
    using QTreeView::rowsRemoved;
    void rowsRemoved(std::size_t first, std::size_t count) override;
    void rowsAboutToBeReset() override { selectedRows_.note(); }
    void rowsReset() override;

    void beforeChange();
    void afterChange();
    void showOrder();
    void showSelection();
    // Selects the current row when no row is.
    void ensureSelection();
    // Tells the console which row is selected.
    void selectCurrent();
    void selectOnly(const QModelIndex& index);
    void clickTitle(int column);
    void open();

    Operations& operations_;
    shell::Observers& observers_;
    ListModel& model_;
    ViewSettings& settings_;
    ColumnLayout columns_;
    RowSelection selectedRows_;
    std::optional<Anchor> anchor_;
    console::ScopeId scope_ = 0; // whose list this is
    bool following_ = false;     // showing a change by the console, which need not be reported back
};

} // namespace desktop
