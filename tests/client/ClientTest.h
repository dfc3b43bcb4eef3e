#pragma once

#include "client/CQVXAdminClass.h"
#include "tests/client/Recorders.h"
#include "tests/support/Bytes.h"
#include "tests/support/ScriptedServer.h"

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <utility>
#include <vector>

namespace client {

using support::Bytes;
using support::commandMessage;
using support::countedList;
using support::dataMessage;
using support::frame;
using support::hex;
using support::operator+;
using Connection = support::ScriptedServer::Connection;

// A client with its own settings, and a server that plays a script for each of its connections.
class ClientTest : public testing::Test {
protected:
    ClientTest() {
        settings->host = "127.0.0.1";
        settings->port = support::ScriptedServer::unusedPort();
        settings->hooks = {.commands = &observer, .wait = nullptr, .messages = &messages};
    }

    void serve(std::vector<support::ScriptedServer::Script> scripts) {
        server.emplace(std::move(scripts));
        settings->port = server->port();
    }

    // One connection for each reply: receives a frame, answers with these bytes, and waits for the end.
    void answer(const std::vector<Bytes>& replies) {
        std::vector<support::ScriptedServer::Script> scripts;
        scripts.reserve(replies.size());
        for (const Bytes& reply : replies) {
            scripts.emplace_back([reply](Connection& connection) {
                connection.expectFrame();
                connection.send(reply);
                connection.untilClosed();
            });
        }
        serve(std::move(scripts));
    }

    // The bytes received over a connection, once all scripts have ended without a failure.
    Bytes received(std::size_t connection = 0) {
        EXPECT_EQ(server->finish(), "");
        return server->received(connection);
    }

    // A request with these fields on the wire: the fields first, then the command.
    static Bytes request(std::uint16_t opcode, const Bytes& fields, std::uint16_t version = 1) {
        return frame({dataMessage(fields), commandMessage(opcode, version)});
    }

    static Bytes request(std::uint16_t opcode, const char* fields, std::uint16_t version = 1) {
        return request(opcode, hex(fields), version);
    }

    RecordingObserver observer;
    RecordingMessages messages;
    std::shared_ptr<CQVXAdminClassProperties> settings = std::make_shared<CQVXAdminClassProperties>();
    std::optional<support::ScriptedServer> server;
};

// The text of the exception or the plain string that the action throws.
template <class Action>
std::string thrownBy(Action&& action) {
    try {
        std::forward<Action>(action)();
    } catch (const std::exception& error) {
        return error.what();
    } catch (const char* text) {
        return std::string("plain: ") + text;
    }
    return "nothing";
}

} // namespace client
