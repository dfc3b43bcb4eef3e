#include "hosts/desktop/window/ContextMenus.h"

#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/window/KeptRow.h"
#include "shell/MenuChoice.h"

#include <QAction>
#include <QMenu>

#include <algorithm>
#include <array>

namespace desktop {
namespace {

// With which the product begins the entries that make something.
constexpr std::array newWords{"Create ", "New ", "Add "};

void request(Operations& operations, const shell::Target& target, std::int32_t id) {
    const auto kept = std::make_shared<KeptRow>();
    operations.request([target, id, kept](shell::Shell& console) {
        kept->note(console);
        return console.invoke(id, target);
    });
    operations.later(
        [&operations, kept] { operations.perform([&](shell::Shell& console) { return kept->select(console); }); });
}

} // namespace

ContextMenus::ContextMenus(Operations& operations, const Actions& actions, QWidget& window)
    : operations_(operations), actions_(actions), window_(window) {}

std::vector<shell::MenuItem> ContextMenus::entries(const shell::Target& target) const {
    std::vector<shell::MenuItem> items;
    operations_.perform([&](shell::Shell& console) {
        items = console.menu(target);
        return true;
    });
    return items;
}

bool ContextMenus::addEntries(QMenu& menu, const shell::Target& target) const {
    const auto items = entries(target);
    for (const auto& item : items) {
        if (item.separator) {
            menu.addSeparator();
            continue;
        }
        QAction* const action = menu.addAction(oneLine(item.text));
        action->setStatusTip(oneLine(item.statusText));
        action->setCheckable(item.checked);
        action->setChecked(item.checked);
        action->setEnabled(!item.disabled);
        action->setData(item.id);
        QObject::connect(action, &QAction::triggered, &menu,
                         [&operations = operations_, target, id = item.id] { request(operations, target, id); });
    }
    return !items.empty();
}

void ContextMenus::fill(QMenu& menu, const shell::Target& target) const {
    menu.setAccessibleName(QStringLiteral("Actions"));
    const std::size_t rows = selectedRows ? selectedRows() : 0;
    actions_.update(operations_, rows);
    if (rows < 2) {
        if (addEntries(menu, target)) {
            menu.addSeparator();
        }
        actions_.addVerbs(menu);
        menu.addSeparator();
    }
    actions_.addForRows(menu);
    menu.addSeparator();
    menu.addAction(actions_.refresh);
    if (actions_.exportList->isEnabled()) {
        menu.addAction(actions_.exportList);
    }
}

QStringList ContextMenus::creators(const shell::Target& target) const {
    QStringList names;
    operations_.perform([&](shell::Shell& console) {
        for (const auto& item : console.menu(target)) {
            const QString name = oneLine(item.text);
            const bool makes = std::ranges::any_of(
                newWords, [&](const char* word) { return name.startsWith(QLatin1String(word), Qt::CaseInsensitive); });
            if (makes && !item.separator && !item.disabled) {
                names += name;
            }
        }
        return true;
    });
    return names;
}

std::unique_ptr<QMenu> ContextMenus::make(const shell::Target& target) const {
    auto menu = std::make_unique<QMenu>(&window_); // so that status texts reach the window's status bar
    fill(*menu, target);
    return menu;
}

void ContextMenus::run(const shell::MenuItem* entry, const shell::Target& target) const {
    if (entry != nullptr) {
        request(operations_, target, entry->id);
    }
}

void ContextMenus::open(const shell::Target& target) const {
    const auto items = entries(target);
    run(shell::openingEntry(items), target);
}

void ContextMenus::remove(const shell::Target& target) const {
    const auto items = entries(target);
    run(shell::removingEntry(items), target);
}

void ContextMenus::show(const shell::Target& target, const QPoint& place) const {
    make(target)->exec(place);
}

} // namespace desktop
