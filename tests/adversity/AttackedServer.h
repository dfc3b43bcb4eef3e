#pragma once

#include "tests/server/support/TestEstate.h"
#include "tests/support/Bytes.h"

#include <memory>
#include <string>

namespace adversity {

using support::Bytes;

// What a server did with the data of one frame.
enum class Taking {
    dropped,  // the connection is closed without an answer
    refused,  // the change was refused
    answered, // the request was carried out
};

// The server's code from the data of a frame to the database, run in this process without a network, on a sample
// estate.
class AttackedServer {
public:
    AttackedServer();

    // Carries out what the frame asks for. Throws std::runtime_error when a dropped or refused request has changed
    // something; any other exception is a fault of the server, too.
    Taking take(std::uint8_t count, const Bytes& data);

    // The text of the last refusal.
    [[nodiscard]] const std::string& refusal() const { return refusal_; }

    // What is wrong with the database; empty if nothing is.
    [[nodiscard]] std::string unsound();

    [[nodiscard]] server::StoreConnection& connection() { return place_.connection(); }

private:
    [[nodiscard]] Taking carryOut(std::uint8_t count, const Bytes& data);
    [[nodiscard]] std::int64_t version();

    server::test::TestEstate place_;
    std::unique_ptr<server::StoreConnection> witness_;
    std::string refusal_;
};

} // namespace adversity
