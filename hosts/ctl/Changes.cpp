#include "hosts/ctl/Changes.h"

#include "hosts/ctl/NodeFinder.h"
#include "hosts/ctl/PrintableText.h"

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
    if (entry->disabled) {
        throw Failure(ExitStatus::refused, "The entry \"" + shown(entry->text) + "\" is disabled");
    }
    session.ui().setSteps(StepList(options.steps));
    shell.invoke(entry->id, target);
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
    shell.rename(newName);
    session.check();
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
    shell.select(target);
    session.check();
    const auto where = '"' + shown(wire::toWide(options.target)) + '"';
    if (!shell.canPaste()) {
        throw Failure(ExitStatus::refused, where + " does not take " + what);
    }
    shell.paste();
    session.check();
}

} // namespace ctl
