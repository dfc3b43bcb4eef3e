#include "hosts/desktop/tree/TreePath.h"

#include "hosts/desktop/look/Text.h"

#include <algorithm>

namespace desktop {

using console::ScopeId;

namespace {

// Shows the list of the item and selects the row with the name; false without one.
bool selectRow(Operations& operations, ScopeId item, const QString& name) {
    if (!operations.perform([&](shell::Shell& console) { return console.select(item); })) {
        return false;
    }
    const auto& pane = operations.shell().pane();
    for (std::size_t place = 0; place < pane.rowCount(); ++place) {
        if (toQString(pane.cell(place, 0)) == name) {
            return operations.perform([&](shell::Shell& console) { return console.selectRow(pane.row(place).id); });
        }
    }
    return false;
}

} // namespace

std::optional<std::vector<QString>> namesInPath(const QString& path) {
    std::vector<QString> names(1);
    for (qsizetype place = 0; place < path.size(); ++place) {
        if (path[place] == QLatin1Char('\\')) {
            if (++place == path.size() || (path[place] != QLatin1Char('/') && path[place] != QLatin1Char('\\'))) {
                return std::nullopt;
            }
            names.back() += path[place];
        } else if (path[place] == QLatin1Char('/')) {
            names.emplace_back();
        } else {
            names.back() += path[place];
        }
    }
    if (names.front().isEmpty()) {
        names.erase(names.begin());
    }
    if (!names.empty() && names.back().isEmpty()) {
        names.pop_back();
    }
    const bool whole = std::ranges::none_of(names, [](const QString& name) { return name.isEmpty(); });
    return whole ? std::optional(std::move(names)) : std::nullopt;
}

std::optional<QString> openPath(Operations& operations, const QString& path) {
    const auto names = namesInPath(path);
    if (!names) {
        return QStringLiteral("\"%1\" is not a path").arg(path);
    }
    const auto& tree = operations.shell().tree();
    const auto expand = [&](ScopeId id) {
        operations.perform([&](shell::Shell& console) { return console.expand(id); });
    };
    expand(tree.root());
    const auto servers = tree.children(tree.root());
    ScopeId item = servers.empty() ? tree.root() : servers.front();
    for (const QString& name : *names) {
        expand(item);
        const auto children = tree.children(item);
        const auto found =
            std::ranges::find_if(children, [&](ScopeId child) { return toQString(tree.text(child)) == name; });
        if (found == children.end()) {
            const bool isLast = &name == &names->back();
            return isLast && selectRow(operations, item, name)
                       ? std::nullopt
                       : std::optional(
                             QStringLiteral("There is no \"%1\" in \"%2\"").arg(name, toQString(tree.text(item))));
        }
        item = *found;
    }
    const bool done = operations.perform([&](shell::Shell& console) { return console.select(item); });
    return done ? std::nullopt : std::optional(QStringLiteral("\"%1\" can't be shown").arg(path));
}

} // namespace desktop
