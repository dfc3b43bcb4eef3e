#include "hosts/ctl/Changes.h"

#include "hosts/ctl/FormWriter.h"
#include "hosts/ctl/MenuEntry.h"
#include "hosts/ctl/NodeFinder.h"
#include "hosts/ctl/PrintableText.h"

#include <sstream>

namespace ctl {

namespace {

// Chooses the entry from the menu of the node or the row, and does the steps.
void choose(const Options& options, Session& session) {
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
    const auto& entry = entryCalled(menu, options.entry);
    session.ui().setSteps(StepList(options.steps));
    shell.invoke(entry.id, target);
    session.check();
}

} // namespace

void runEntry(const Options& options, Session& session) {
    choose(options, session);
}

void printForm(const Options& options, Session& session, std::ostream& out) {
    session.forbidWrites();
    std::ostringstream form;
    session.ui().setReader([&](forms::Form& open) { writeForm(form, open, options.format); });
    choose(options, session);
    if (!session.ui().hasRead()) {
        throw Failure(ExitStatus::refused,
                      "No form is open after the entry \"" + shown(wire::toWide(options.entry)) + "\" and the steps");
    }
    out << form.str();
}

void renameNode(const Options& options, Session& session) {
    const auto path = parsePath(options.path);
    const auto newName = bearable(wire::toWide(options.newName));
    shell::Shell& shell = session.start();
    const auto id = findNode(shell, path);
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
    const auto id = findNode(shell, path);
    const auto target = findNode(shell, targetPath);
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
