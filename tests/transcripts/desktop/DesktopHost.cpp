#include "tests/transcripts/desktop/DesktopHost.h"

#include "hosts/ctl/CommandLine.h"
#include "hosts/ctl/MenuEntry.h"
#include "hosts/ctl/MenuWriter.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/ShellWords.h"
#include "hosts/desktop/look/Text.h"
#include "shell/ListExport.h"
#include "tests/support/Environment.h"
#include "tests/transcripts/desktop/Desk.h"
#include "tests/transcripts/desktop/Hands.h"

#include <QAction>
#include <QLineEdit>

#include <algorithm>
#include <list>
#include <sstream>

namespace transcripts {
namespace {

using ctl::ExitStatus;
using ctl::Failure;

std::string textOf(const QModelIndex& index) {
    return index.data().toString().toStdString();
}

void writeBranches(Desk& desk, const ctl::Options& options, std::ostream& out, const QPersistentModelIndex& item,
                   const std::string& guide, std::uint32_t level) {
    if (options.depth && level >= *options.depth) {
        return;
    }
    desk.expand(item);
    const auto& model = *desk.tree().model();
    const int count = model.rowCount(item);
    for (int row = 0; row < count; ++row) {
        const QModelIndex child = model.index(row, 0, item);
        const bool last = row == count - 1;
        out << guide << (last ? "└── " : "├── ") << textOf(child) << '\n';
        writeBranches(desk, options, out, child, guide + (last ? "    " : "│   "), level + 1);
    }
}

void writeTree(Desk& desk, const ctl::Options& options, std::ostream& out) {
    const auto item = desk.open(ctl::parsePath(options.path));
    out << textOf(item) << '\n';
    writeBranches(desk, options, out, item, "", 0);
}

void writeList(Desk& desk, const ctl::Options& options, std::ostream& out) {
    desk.open(ctl::parsePath(options.path));
    desk.check();
    const auto& model = *desk.list().model();
    std::vector<wire::WideString> columns;
    std::vector<std::vector<wire::WideString>> rows(static_cast<std::size_t>(model.rowCount()));
    for (int column = 0; column < model.columnCount(); ++column) {
        columns.push_back(desktop::toWideString(model.headerData(column, Qt::Horizontal).toString()));
        for (int row = 0; row < model.rowCount(); ++row) {
            rows[static_cast<std::size_t>(row)].push_back(
                desktop::toWideString(model.index(row, column).data().toString()));
        }
    }
    shell::writeText(
        out, {.columns = columns,
              .rowCount = rows.size(),
              .cell = [&](std::size_t row, std::size_t column) -> wire::WideStringView { return rows[row][column]; }});
}

// The entries of the console among those of a menu; the verbs of the desktop's own have no number.
std::vector<shell::MenuItem> entriesOf(const QMenu& menu) {
    std::vector<shell::MenuItem> entries;
    for (const QAction* const action : menu.actions()) {
        if (action->data().isValid()) {
            entries.push_back({.text = desktop::toWideString(action->text()),
                               .statusText = desktop::toWideString(action->statusTip()),
                               .id = action->data().toInt(),
                               .checked = action->isChecked(),
                               .disabled = !action->isEnabled()});
        }
    }
    return entries;
}

// Opens the menu of a node, or of a row of its list, and does something with it.
void withMenu(Desk& desk, const ctl::Options& options, const std::function<void(QMenu&)>& act) {
    desk.open(ctl::parsePath(options.path));
    if (options.row) {
        desk.selectRow(*options.row);
    }
    std::optional<Failure> failure;
    desk.person().whenMenuOpens([&](QMenu& menu) {
        try {
            act(menu);
        } catch (const Failure& failed) {
            failure = failed;
        }
        menu.close();
    });
    hands::askForMenu(options.row ? static_cast<QAbstractItemView&>(desk.list()) : desk.tree());
    desk.settle();
    if (failure) {
        throw *failure;
    }
}

void writeMenu(Desk& desk, const ctl::Options& options, std::ostream& out) {
    withMenu(desk, options, [&](const QMenu& menu) { ctl::writeMenu(out, entriesOf(menu), options.format); });
}

void runEntry(Desk& desk, const ctl::Options& options) {
    withMenu(desk, options, [&](QMenu& menu) {
        const auto entries = entriesOf(menu);
        const auto id = ctl::entryCalled(entries, options.entry).id;
        desk.person().setSteps(ctl::StepList(options.steps));
        for (QAction* const action : menu.actions()) {
            if (action->data().isValid() && action->data().toInt() == id) {
                hands::choose(menu, *action);
                return;
            }
        }
    });
}

std::string quoted(const std::string& path) {
    return '"' + ctl::shown(wire::toWide(path)) + '"';
}

void rename(Desk& desk, const ctl::Options& options) {
    desk.open(ctl::parsePath(options.path));
    if (!desk.window().actions().rename->isEnabled()) {
        throw Failure(ExitStatus::refused, quoted(options.path) + " can't be renamed");
    }
    hands::press(desk.tree(), Qt::Key_F2);
    auto* const editor = desk.tree().viewport()->findChild<QLineEdit*>();
    if (editor == nullptr) {
        throw Failure(ExitStatus::refused, "The tree has no box for the new name");
    }
    hands::type(*editor, QString::fromStdString(options.newName));
    hands::press(*editor, Qt::Key_Return);
    desk.settle();
}

void move(Desk& desk, const ctl::Options& options) {
    const QPersistentModelIndex target = desk.open(ctl::parsePath(options.target));
    desk.open(ctl::parsePath(options.path));
    if (!desk.window().actions().cut->isEnabled()) {
        throw Failure(ExitStatus::refused, quoted(options.path) + " can't be moved");
    }
    hands::press(desk.tree(), Qt::Key_X, Qt::ControlModifier);
    desk.settle();
    hands::click(desk.tree(), target);
    desk.settle();
    if (!desk.window().actions().paste->isEnabled()) {
        throw Failure(ExitStatus::refused, quoted(options.target) + " does not take " + quoted(options.path));
    }
    hands::press(desk.tree(), Qt::Key_V, Qt::ControlModifier);
    desk.settle();
}

void carryOut(Desk& desk, const ctl::Options& options, std::ostream& out) {
    switch (options.command) {
    case ctl::CommandKind::tree:
        return writeTree(desk, options, out);
    case ctl::CommandKind::show:
        return writeList(desk, options, out);
    case ctl::CommandKind::menu:
        return writeMenu(desk, options, out);
    case ctl::CommandKind::run:
        return runEntry(desk, options);
    case ctl::CommandKind::rename:
        return rename(desk, options);
    case ctl::CommandKind::move:
        return move(desk, options);
    default:
        throw Failure(ExitStatus::usage, "The desktop has no such command");
    }
}

// Takes those in front of the command and sets them for as long as it runs.
std::list<support::EnvironmentVariable> variablesOf(std::vector<std::string>& words) {
    std::list<support::EnvironmentVariable> variables;
    const auto isVariable = [](const std::string& word) { return word.find('=') != std::string::npos; };
    const auto command = std::ranges::find_if_not(words, isVariable);
    for (auto word = words.begin(); word != command; ++word) {
        const auto end = word->find('=');
        variables.emplace_back(word->substr(0, end), word->substr(end + 1));
    }
    words.erase(words.begin(), command);
    return variables;
}

ctl::Options optionsOf(const std::vector<std::string>& words) {
    if (words.empty() || words.front() != "vantrelctl") {
        throw Failure(ExitStatus::usage, "The desktop knows vantrelctl only");
    }
    std::vector<const char*> arguments;
    std::ranges::transform(words, std::back_inserter(arguments), [](const std::string& word) { return word.c_str(); });
    auto parsed = ctl::parseCommandLine(static_cast<int>(arguments.size()), arguments.data());
    auto* const options = std::get_if<ctl::Options>(&parsed);
    if (options == nullptr) {
        throw Failure(ExitStatus::usage, "The desktop has no help of this kind");
    }
    return *options;
}

} // namespace

Outcome DesktopHost::run(const std::string& line) {
    auto words = ctl::shellWords(line);
    const auto variables = variablesOf(words);
    std::ostringstream out;
    std::string said;
    try {
        const auto options = optionsOf(words);
        Desk desk(server_);
        try {
            carryOut(desk, options, out);
            desk.check();
        } catch (...) {
            said = desk.person().said();
            throw;
        }
        said = desk.person().said();
    } catch (const Failure& failure) {
        return {.status = static_cast<int>(failure.status()),
                .text = out.str() + said + "vantrelctl: " + ctl::shown(wire::toWide(failure.what())) + '\n'};
    }
    return {.status = 0, .text = out.str() + said};
}

} // namespace transcripts
