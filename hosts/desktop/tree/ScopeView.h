#pragma once

#include "hosts/desktop/tree/ScopeModel.h"

#include <QTreeView>

namespace desktop {

// The tree pane: passes user input to the console, and shows what the console selects or opens.
class ScopeView final : public QTreeView, private shell::ShellObserver {
public:
    // All outlive it. Made after the model, so that the model learns of a change first.
    ScopeView(Operations& operations, shell::Observers& observers, ScopeModel& model, QWidget* parent = nullptr);
    ~ScopeView() override;

    void renameCurrent() { edit(currentIndex()); }
    // Called when a menu is requested by mouse or key, with its place on the screen; the item is already selected.
    std::function<void(const shell::Target&, const QPoint&)> onMenu;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    void selectionChanged() override;
    void cutChanged() override { viewport()->update(); }
    using QTreeView::selectionChanged;
    void scopeItemOpened(console::ScopeId item, bool open) override;
    void scopeItemsInserted(console::ScopeId parent, std::size_t first, std::size_t count) override;
    void followOpen(console::ScopeId item);
    void showSelection();
    void selectCurrent();

    Operations& operations_;
    shell::Observers& observers_;
    ScopeModel& model_;
    bool following_ = false; // showing a change by the console, which need not be reported back
};

} // namespace desktop
