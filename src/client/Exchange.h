#pragma once

#include "client/CQVXAdminClass2.h"
#include "client/CommandObserver.h"
#include "protocol/Catalogue.h"
#include "wire/ITransport.h"
#include "wire/Message.h"

#include <chrono>
#include <cstdint>
#include <memory>
#include <string>
#include <utility>

namespace client {

// Reports to the request observer what a command asks for; null data means a command without fields.
void announceRequest(CQVXAdminClass2& client, const protocol::Command& command, const wire::Message* data);

// One command on its own connection, as its row of the catalogue defines. Closes the connection and reports to the
// command observer when it goes out of scope, exactly once.
class Exchange {
public:
    // The summary says what the command is about, in UTF-8.
    Exchange(CQVXAdminClass2& client, const protocol::Command& command, std::string summary = {});
    ~Exchange();

    Exchange(const Exchange&) = delete;
    Exchange& operator=(const Exchange&) = delete;

    // False when a member connection can't be made; an open one throws ConnectFailed instead.
    [[nodiscard]] bool connect();

    // Uses a connection that was set up elsewhere, with its own settings.
    [[nodiscard]] bool connect(std::unique_ptr<wire::ITransport> own, std::uint32_t timeoutSeconds);

    // Sends the command with its fields; null data means a command without fields. Announces the request of a command
    // with a reply; for any other command that was done before. Throws std::runtime_error "failed to send messages" for
    // a guarded send without a connection.
    void send(std::unique_ptr<wire::Message> data);

    // The next message of the reply. Null when it does not arrive and the row's reader form lets the reply end there;
    // otherwise throws std::runtime_error with the text of that form. Reuses the memory of the previous message.
    [[nodiscard]] std::unique_ptr<wire::Message> receive(std::unique_ptr<wire::Message> used = nullptr);

    // The number of records that a count message announces: a signed 16-bit number, so that 32,768 and more are below 0
    // and announce no records.
    [[nodiscard]] static std::int16_t readCount(wire::Message& message);

    void noteRecords(std::uint32_t records);

    // Marks the command as failed without an exception.
    void fail(std::string text);

    // Runs a part of the command and keeps the text of what it throws for the report.
    template <class Body>
    auto run(Body&& body) {
        try {
            return std::forward<Body>(body)();
        } catch (...) {
            noteException();
            throw;
        }
    }

    [[nodiscard]] wire::ITransport& transport() { return *transport_; }

private:
    void noteException();
    void report(void (CommandObserver::*event)(const CommandReport&)) noexcept;

    CQVXAdminClass2& client_;
    const protocol::Command& command_;
    std::unique_ptr<wire::ITransport> owned_;
    wire::ITransport* transport_ = nullptr; // owned_ or the client's
    CommandReport report_;
    std::chrono::steady_clock::time_point start_;
};

} // namespace client
