#pragma once

#include "hosts/desktop/list/ColumnLayout.h"
#include "hosts/desktop/list/ListModel.h"

#include <QTreeView>

#include <optional>

namespace desktop {

// The list pane: passes user input to the console and shows what the console lists; the rows in view keep their
// position when the list is read again.
class ListView final : public QTreeView, private shell::ShellObserver {
public:
    // All outlive it. Made after the model, so that the model learns of a change first.
    ListView(Operations& operations, shell::Observers& observers, ListModel& model, ViewSettings& settings,
             QWidget* parent = nullptr);
    ~ListView() override;

    ColumnLayout& columns() { return columns_; }
    void renameCurrent() { edit(currentIndex().siblingAtColumn(0)); }

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
    void columnsChanged() override;
    using QTreeView::rowsInserted;
    void rowsInserted(std::size_t first, std::size_t count) override;
    using QTreeView::rowsRemoved;
    void rowsRemoved(std::size_t first, std::size_t count) override;
    void rowsReset() override;

    void beforeChange();
    void afterChange();
    void showOrder();
    void showSelection();
    void selectCurrent();
    void open(const QModelIndex& index);

    Operations& operations_;
    shell::Observers& observers_;
    ListModel& model_;
    ColumnLayout columns_;
    std::optional<Anchor> anchor_;
    console::ScopeId scope_ = 0; // whose list this is
    bool following_ = false;     // showing a change by the console, which need not be reported back
};

} // namespace desktop
