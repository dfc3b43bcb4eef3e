#pragma once

#include "hosts/desktop/tree/ScopeModel.h"

#include <QTreeView>

namespace desktop {

// The tree pane: what the person does in it goes to the console, and what the console selects or opens is shown in it.
class ScopeView final : public QTreeView, private shell::ShellObserver {
public:
    // All outlive it. Made after the model, so that the model learns of a change first.
    ScopeView(Operations& operations, shell::Observers& observers, ScopeModel& model, QWidget* parent = nullptr);
    ~ScopeView() override;

    void renameCurrent() { edit(currentIndex()); }
    // Asked for by mouse or key, with the place on the screen; the item is selected already.
    std::function<void(const shell::Target&, const QPoint&)> onMenu;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void selectionChanged() override;
    using QTreeView::selectionChanged;
    void scopeItemOpened(console::ScopeId item, bool open) override;
    void scopeItemsInserted(console::ScopeId parent, std::size_t first, std::size_t count) override;
    void followOpen(console::ScopeId item);
    void showSelection();
    void selectCurrent();

    Operations& operations_;
    shell::Observers& observers_;
    ScopeModel& model_;
    bool following_ = false; // the console's change is being shown: it needs no telling
};

} // namespace desktop
