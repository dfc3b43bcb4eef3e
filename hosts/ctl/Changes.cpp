#include "hosts/ctl/Changes.h"

#include "hosts/ctl/NodeFinder.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/WriteCheck.h"

#include <algorithm>
#include <charconv>

namespace ctl {
namespace {

using console::ScopeId;
using shell::MenuItem;

const MenuItem* findEntry(const std::vector<MenuItem>& menu, const std::string& wanted) {
    std::int32_t id = 0;
    const auto [end, error] = std::from_chars(wanted.data(), wanted.data() + wanted.size(), id);
    if (error == std::errc() && end == wanted.data() + wanted.size()) {
        const auto found =
            std::ranges::find_if(menu, [&](const auto& item) { return !item.separator && item.id == id; });
        if (found != menu.end()) {
            return &*found;
        }
    }
    const auto text = wire::toWide(wanted);
    const auto found = std::ranges::find_if(menu, [&](const auto& item) {
        return !item.separator && (sameWord(item.text, text) || sameWord(item.text, text + u"..."));
    });
    return found != menu.end() ? &*found : nullptr;
}

std::vector<wire::WideString> textsOf(const std::vector<MenuItem>& menu) {
    std::vector<wire::WideString> texts;
    for (const auto& item : menu) {
        if (!item.separator) {
            texts.push_back(item.text);
        }
    }
    return texts;
}

// The wire carries characters outside the basic plane to another place, so that such a name never comes back as it
// went.
bool isRenamed(const wire::WideString& before, const wire::WideString& wanted, const wire::WideString& now) {
    const bool altered = std::ranges::any_of(wanted, [](char16_t unit) { return unit >= 0xD800 && unit <= 0xDFFF; });
    return now == wanted || (altered && now != before);
}

// The scope item of the node of a row; the item that lists it when the row has none of its own.
ScopeId itemOf(shell::Shell& shell, const shell::Target& target) {
    const auto index = shell.pane().indexOf(target.row);
    for (const ScopeId child : shell.tree().children(target.scope)) {
        const auto& node = *shell.tree().find(child)->node;
        if (index && node.className() == shell.pane().row(*index).node->className() &&
            node.refreshKey() == shell.pane().row(*index).node->refreshKey()) {
            shell.expand(child);
            return child;
        }
    }
    return target.scope;
}

// Reads the children of an item anew, as F5 on it does.
void readAgain(shell::Shell& shell, ScopeId id) {
    shell.select(id);
    shell.refresh();
}

} // namespace

void runEntry(const Options& options, Session& session) {
    const auto path = parsePath(options.path);
    shell::Shell& shell = session.start();
    shell.select(findNode(shell, path));
    shell::Target target = shell.selection();
    if (options.row) {
        target.row = findRow(shell, wire::toWide(*options.row));
        shell.selectRow(target.row);
    }
    const auto menu = shell.menu(target);
    session.check();
    const MenuItem* const entry = findEntry(menu, options.entry);
    if (entry == nullptr) {
        throw Failure(ExitStatus::refused,
                      "The menu has no entry \"" + shown(wire::toWide(options.entry)) + '"' +
                          (menu.empty() ? "; it is empty" : "; there is " + listed(textsOf(menu))));
    }
    const ScopeId item = target.row != 0 ? itemOf(shell, target) : target.scope;
    session.check();
    WriteCheck refusal(shell, session.observers(), item);
    session.ui().setSteps(StepList(options.steps));
    shell.invoke(entry->id, target);
    session.check();
    refusal.check();
    session.check();
}

void renameNode(const Options& options, Session& session) {
    const auto path = parsePath(options.path);
    const auto newName = bearable(wire::toWide(options.newName));
    shell::Shell& shell = session.start();
    const ScopeId id = findNode(shell, path);
    shell.select(id);
    session.check();
    if (!shell.canRename()) {
        throw Failure(ExitStatus::refused, '"' + shown(wire::toWide(options.path)) + "\" can't be renamed");
    }
    const auto oldName = shell.tree().text(id);
    shell.rename(newName);
    session.check();
    readAgain(shell, shell.tree().parent(id));
    session.check();
    if (!isRenamed(oldName, newName, shell.tree().text(id))) {
        throw Failure(ExitStatus::refused, "The server did not carry out the rename to \"" + shown(newName) + '"');
    }
}

void moveNode(const Options& options, Session& session) {
    const auto path = parsePath(options.path);
    const auto targetPath = parsePath(options.target);
    shell::Shell& shell = session.start();
    const ScopeId id = findNode(shell, path);
    const ScopeId target = findNode(shell, targetPath);
    shell.select(id);
    session.check();
    const auto what = '"' + shown(wire::toWide(options.path)) + '"';
    if (!shell.cut()) {
        throw Failure(ExitStatus::refused, what + " can't be moved");
    }
    const auto moved = shell.tree().find(id)->node;
    shell.select(target);
    session.check();
    const auto where = '"' + shown(wire::toWide(options.target)) + '"';
    if (!shell.canPaste()) {
        throw Failure(ExitStatus::refused, where + " does not take " + what);
    }
    shell.paste();
    session.check();
    readAgain(shell, target);
    session.check();
    const auto children = shell.tree().children(target);
    const bool there = std::ranges::any_of(children, [&](ScopeId child) {
        const auto& node = *shell.tree().find(child)->node;
        return node.className() == moved->className() && node.refreshKey() == moved->refreshKey();
    });
    if (!there) {
        throw Failure(ExitStatus::refused, "The server did not carry out the move of " + what + " to " + where);
    }
}

} // namespace ctl
