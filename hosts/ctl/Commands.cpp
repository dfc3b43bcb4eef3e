#include "hosts/ctl/Commands.h"

#include "client/CQVXAdminClass.h"
#include "hosts/ctl/CatalogueDocument.h"
#include "hosts/ctl/CatalogueTable.h"
#include "hosts/ctl/Changes.h"
#include "hosts/ctl/FieldArgument.h"
#include "hosts/ctl/ListWriter.h"
#include "hosts/ctl/MenuWriter.h"
#include "hosts/ctl/NodeFinder.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/ReplyJson.h"
#include "hosts/ctl/TreeWriter.h"

#include <nlohmann/json.hpp>

#include <algorithm>

namespace ctl {
namespace {

void logIn(const Options& options, Session& session, std::ostream& out) {
    const auto text = session.logIn();
    if (options.format == Format::json) {
        out << dump({{"connected", true}, {"text", wire::toUtf8(text)}}) << '\n';
    } else {
        out << shown(text) << '\n';
    }
}

// What of the filter was probably meant differently; the output is of use all the same.
void note(Session& session, const std::vector<shell::FilterProblem>& problems) {
    for (const auto& problem : problems) {
        session.ui().note(shown(shell::describe(problem)));
    }
}

void printTree(const Options& options, Session& session, std::ostream& out) {
    const auto path = parsePath(options.path);
    const auto choice = parseListChoice(options);
    shell::Shell& shell = session.start();
    const auto id = findNode(shell, path);
    session.check();
    TreeReader reader(shell, options.depth, choice);
    const auto tree = reader.read(id);
    session.check();
    note(session, reader.problems());
    writeTree(out, tree, reader.titles(), options.format);
}

void showList(const Options& options, Session& session, std::ostream& out) {
    const auto path = parsePath(options.path);
    const auto choice = parseListChoice(options);
    shell::Shell& shell = session.start();
    shell.select(findNode(shell, path));
    session.check();
    const ListWriter writer(shell, choice);
    note(session, shell::RowFilter(choice.filter, titlesOf(shell)).problems());
    if (options.format == Format::json) {
        writer.writeJson(out, path);
    } else {
        writer.write(out, options.format);
    }
}

void showMenu(const Options& options, Session& session, std::ostream& out) {
    const auto path = parsePath(options.path);
    shell::Shell& shell = session.start();
    shell.select(findNode(shell, path));
    shell::Target target = shell.selection();
    target.row = options.row ? findRow(shell, wire::toWide(*options.row)) : 0;
    const auto menu = shell.menu(target);
    session.check();
    writeMenu(out, menu, options.format);
}

// "u8:kind i32:parentId", as the fields of a call are written.
std::string fieldsOf(const protocol::RecordLayout& layout) {
    std::string text;
    for (const auto& field : layout.fields) {
        text += (text.empty() ? "" : " ") +
                std::string(field.kind == protocol::FieldKind::record ? field.element->name
                                                                      : protocol::nameOf(field.kind)) +
                ':' + std::string(field.name);
    }
    return text;
}

// Throws Failure (usage) for a command that takes fields.
void refuseWithoutFields(const protocol::Command& command) {
    std::string wanted = command.request != nullptr ? fieldsOf(*command.request) : "";
    for (const auto& form : command.forms) {
        wanted += (wanted.empty() ? "" : "; or ") + fieldsOf(*form.layout) + " (" + std::string(form.when) + ')';
    }
    if (!wanted.empty()) {
        throw Failure(ExitStatus::usage, "The command " + std::string(command.name) + " takes " + wanted +
                                             " (see vantrelctl commands --format json)");
    }
}

void call(const Options& options, Session& session, std::ostream& out) {
    const auto& command = findCommand(options.opcode);
    std::vector<protocol::FieldValue> fields;
    std::ranges::transform(options.fields, std::back_inserter(fields), parseField);
    if (command.connection == protocol::Connection::own || command.name == "Login") {
        throw Failure(ExitStatus::usage,
                      "The command " + std::string(command.name) + " is a part of the login; use \"vantrelctl login\"");
    }
    if (options.fields.empty()) {
        refuseWithoutFields(command);
    }
    session.logIn();
    client::CQVXAdminClass client;
    try {
        const auto reply = client.rawCall(command.opcode, fields);
        if (!reply.complete) {
            throw Failure(ExitStatus::refused,
                          "The reply to " + std::string(command.name) + " did not arrive or was cut short");
        }
        session.check();
        out << dump(replyJson(reply), 2) << '\n';
    } catch (const Failure&) {
        throw;
    } catch (...) {
        session.check(); // reports what has failed
        throw;
    }
}

} // namespace

void carryOut(const Options& options, Session& session, std::ostream& out) {
    switch (options.command) {
    case CommandKind::login:
        return logIn(options, session, out);
    case CommandKind::tree:
        return printTree(options, session, out);
    case CommandKind::show:
        return showList(options, session, out);
    case CommandKind::menu:
        return showMenu(options, session, out);
    case CommandKind::form:
        return printForm(options, session, out);
    case CommandKind::run:
        return runEntry(options, session);
    case CommandKind::rename:
        return renameNode(options, session);
    case CommandKind::move:
        return moveNode(options, session);
    case CommandKind::call:
        return call(options, session, out);
    case CommandKind::commands:
        return options.asDocument ? writeCatalogueDocument(out) : writeCatalogue(out, options.format);
    case CommandKind::script:
        break;
    }
}

} // namespace ctl
