#pragma once

#include "hosts/desktop/list/ColumnLayout.h"
#include "hosts/desktop/list/ListModel.h"

#include <QTreeView>

#include <optional>

namespace desktop {

// The list pane: what the person does in it goes to the console, and what the console lists is shown in it, with the
// rows standing still under the person's eyes when the list is read anew.
class ListView final : public QTreeView, private shell::ShellObserver {
public:
    // All outlive it. Made after the model, so that the model learns of a change first.
    ListView(Operations& operations, shell::Observers& observers, ListModel& model, ViewSettings& settings,
             QWidget* parent = nullptr);
    ~ListView() override;

    ColumnLayout& columns() { return columns_; }
    void renameCurrent() { edit(currentIndex().siblingAtColumn(0)); }

    // Asked for by mouse or key, with the place on the screen; the row is selected already. Row 0: the list itself.
    std::function<void(const shell::Target&, const QPoint&)> onMenu;
    // Why there is nothing to see; asked for only then.
    std::function<QString()> emptyText;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // A row and where on the screen it stands.
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
    bool following_ = false;     // the console's change is being shown: it needs no telling
};

} // namespace desktop
