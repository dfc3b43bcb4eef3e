#pragma once

#include "hosts/desktop/window/Actions.h"

#include <QPoint>

#include <memory>

namespace desktop {

// Menus of what the console offers for an item or a row, with what each entry says about itself for the status bar.
class ContextMenus {
public:
    // All outlive it.
    ContextMenus(Operations& operations, const Actions& actions, QWidget& window);

    // The node's own entries, then the verbs and what else there is. The item or row is the selected one.
    void fill(QMenu& menu, const shell::Target& target) const;
    std::unique_ptr<QMenu> make(const shell::Target& target) const;
    // Shows it and does what is chosen.
    void show(const shell::Target& target, const QPoint& place) const;

private:
    bool addEntries(QMenu& menu, const shell::Target& target) const;

    Operations& operations_;
    const Actions& actions_;
    QWidget& window_;
};

} // namespace desktop
