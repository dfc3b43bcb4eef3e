#pragma once

#include "hosts/desktop/window/Actions.h"

#include <QPoint>
#include <QStringList>

#include <memory>

namespace desktop {

// The context menus that the console offers for an item or a row, with each entry's text for the status bar.
class ContextMenus {
public:
    // All outlive it.
    ContextMenus(Operations& operations, const Actions& actions, QWidget& window);

    // Adds the node's own entries, then the verbs and the window's actions. The item or row must be the selected one.
    void fill(QMenu& menu, const shell::Target& target) const;
    [[nodiscard]] std::unique_ptr<QMenu> make(const shell::Target& target) const;
    // The entries that make something new.
    [[nodiscard]] QStringList creators(const shell::Target& target) const;
    // Shows the menu and runs the chosen entry.
    void show(const shell::Target& target, const QPoint& place) const;

private:
    bool addEntries(QMenu& menu, const shell::Target& target) const;

    Operations& operations_;
    const Actions& actions_;
    QWidget& window_;
};

} // namespace desktop
