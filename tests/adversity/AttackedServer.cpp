#include "tests/adversity/AttackedServer.h"

#include "protocol/Catalogue.h"
#include "server/Commands.h"
#include "server/SampleEstate.h"
#include "server/commands/Handler.h"
#include "server/net/Dropped.h"
#include "server/net/RequestFrame.h"
#include "wire/Text.h"

namespace adversity {

namespace {

using server::Query;

constexpr std::size_t pieceSize = 65536;

// What SQLite reports about the database, and whether it waits for the disk.
struct Inspection {
    explicit Inspection(sqlite3* connection)
        : version(connection, "PRAGMA data_version"),
          foreignKeys(connection, "PRAGMA foreign_key_check"),
          integrity(connection, "PRAGMA integrity_check"),
          hurry(connection, "PRAGMA synchronous = OFF") {}

    Query version; // of the file, as other connections have left it
    Query foreignKeys;
    Query integrity;
    Query hurry;
};

Inspection& inspection(server::StoreConnection& connection) {
    return connection.table<Inspection>();
}

} // namespace

AttackedServer::AttackedServer() : witness_(place_.store().openConnection()) {
    inspection(connection()).hurry.execute();
    connection().change([&] {
        server::SampleEstate(connection()).fillSmall();
        return 0;
    });
}

std::int64_t AttackedServer::version() {
    auto rows = inspection(*witness_).version.run();
    return rows.next() ? rows.number(0) : -1;
}

Taking AttackedServer::take(std::uint8_t count, const Bytes& data) {
    const auto before = version();
    Taking taking = Taking::dropped;
    try {
        taking = carryOut(count, data);
    } catch (const server::Dropped&) {
        taking = Taking::dropped;
    } catch (const server::BadRequest&) {
        taking = Taking::dropped;
    }
    if (taking != Taking::answered && version() != before) {
        throw std::runtime_error("something has changed all the same");
    }
    return taking;
}

Taking AttackedServer::carryOut(std::uint8_t count, const Bytes& data) {
    const auto request = server::parseRequestFrame(count, data);
    const auto* command = protocol::findCommand(request.opcode);
    if (command == nullptr || command->version != request.version) {
        return Taking::dropped;
    }
    const auto* handler = server::commands().find(request.opcode, request.fields);
    if (handler == nullptr) {
        return Taking::dropped;
    }
    server::ReplyBuffer reply;
    if (handler->prepare != nullptr) {
        const auto status = handler->prepare(request.fields).make(connection(), reply);
        refusal_ = wire::toUtf8(status.caption) + ": " + wire::toUtf8(status.text);
        return server::isDone(status) ? Taking::answered : Taking::refused;
    }
    const auto answer = handler->answer(request.fields, connection());
    while (answer->append(reply, pieceSize)) {
        reply.clear();
    }
    return Taking::answered;
}

std::string AttackedServer::unsound() {
    auto keys = inspection(connection()).foreignKeys.run();
    if (keys.next()) {
        return "a row of " + std::string(keys.text(0)) + " points at nothing";
    }
    auto integrity = inspection(connection()).integrity.run();
    if (integrity.next() && integrity.text(0) != "ok") {
        return std::string(integrity.text(0));
    }
    return {};
}

} // namespace adversity
