#include "hosts/ctl/Commands.h"

#include "client/CQVXAdminClass.h"
#include "hosts/ctl/CatalogueDocument.h"
#include "hosts/ctl/CatalogueTable.h"
#include "hosts/ctl/Changes.h"
#include "hosts/ctl/FieldArgument.h"
#include "hosts/ctl/MenuWriter.h"
#include "hosts/ctl/NodeFinder.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/ReplyJson.h"
#include "hosts/ctl/TreeWriter.h"
#include "shell/ListExport.h"

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

void writeTree(const Options& options, Session& session, std::ostream& out) {
    const auto path = parsePath(options.path);
    shell::Shell& shell = session.start();
    const auto id = findNode(shell, path);
    session.check();
    TreeWriter writer(shell, options.depth);
    switch (options.format) {
    case Format::json:
        writer.writeJson(out, id);
        break;
    case Format::csv:
        writer.writeCsv(out, id);
        break;
    case Format::table:
        writer.writeText(out, id);
        break;
    }
    session.check();
}

// One row per line, so that long lists stay readable.
void writeListJson(std::ostream& out, const NodePath& path, const shell::Table& table) {
    Json columns = Json::array();
    std::ranges::transform(table.columns, std::back_inserter(columns), wire::toUtf8);
    out << "{\n  \"path\": " << dump(formatPath(path)) << ",\n  \"columns\": " << dump(columns) << ",\n  \"rows\": [";
    for (std::size_t row = 0; row < table.rowCount; ++row) {
        Json cells = Json::array();
        for (std::size_t column = 0; column < table.columns.size(); ++column) {
            cells.push_back(wire::toUtf8(table.cell(row, column)));
        }
        out << (row == 0 ? "\n    " : ",\n    ") << dump(cells);
    }
    out << (table.rowCount == 0 ? "]\n}\n" : "\n  ]\n}\n");
}

void showList(const Options& options, Session& session, std::ostream& out) {
    const auto path = parsePath(options.path);
    shell::Shell& shell = session.start();
    shell.select(findNode(shell, path));
    session.check();
    const auto table = shell.table();
    switch (options.format) {
    case Format::json:
        writeListJson(out, path, table);
        break;
    case Format::csv:
        shell::writeCsv(out, table);
        break;
    case Format::table:
        shell::writeText(out, table);
        break;
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

void call(const Options& options, Session& session, std::ostream& out) {
    const auto& command = findCommand(options.opcode);
    std::vector<protocol::FieldValue> fields;
    std::ranges::transform(options.fields, std::back_inserter(fields), parseField);
    if (command.connection == protocol::Connection::own || command.name == "Login") {
        throw Failure(ExitStatus::usage,
                      "The command " + std::string(command.name) + " is a part of the login; use \"vantrelctl login\"");
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
        return writeTree(options, session, out);
    case CommandKind::show:
        return showList(options, session, out);
    case CommandKind::menu:
        return showMenu(options, session, out);
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
