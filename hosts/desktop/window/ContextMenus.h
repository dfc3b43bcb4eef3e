#pragma once

#include "hosts/desktop/window/Actions.h"

#include <QPoint>
#include <QStringList>

#include <cstddef>
#include <functional>
#include <memory>
#include <vector>

namespace desktop {

// The context menus that the console offers for an item or a row, with each entry's text for the status bar.
class ContextMenus {
public:
    // All outlive it.
    ContextMenus(Operations& operations, const Actions& actions, QWidget& window);

    // How many rows are selected. With several, there is nothing but what can be done with several.
    std::function<std::size_t()> selectedRows;

    // Adds the node's own entries, then the verbs and the window's actions. The item or row must be the selected one.
    void fill(QMenu& menu, const shell::Target& target) const;
    [[nodiscard]] std::unique_ptr<QMenu> make(const shell::Target& target) const;
    // The entries that make something new.
    [[nodiscard]] QStringList creators(const shell::Target& target) const;
    // Shows the menu and runs the chosen entry.
    void show(const shell::Target& target, const QPoint& place) const;
    // Runs the entry that Enter or a double click stands for; does nothing without one.
    void open(const shell::Target& target) const;
    // Runs the entry that the Delete key stands for, which asks its question; does nothing without one.
    void remove(const shell::Target& target) const;

private:
    [[nodiscard]] std::vector<shell::MenuItem> entries(const shell::Target& target) const;
    void run(const shell::MenuItem* entry, const shell::Target& target) const;
    bool addEntries(QMenu& menu, const shell::Target& target) const;

    Operations& operations_;
    const Actions& actions_;
    QWidget& window_;
};

} // namespace desktop
