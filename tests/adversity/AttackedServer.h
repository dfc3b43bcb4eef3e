#pragma once

#include "tests/server/support/TestEstate.h"
#include "tests/support/Bytes.h"

#include <memory>
#include <string>

namespace adversity {

using support::Bytes;

// How a server took the data of one frame.
enum class Taking {
    dropped,  // the connection is closed without an answer
    refused,  // the change was turned down
    answered, // it was carried out
};

// The server's way from the data of a frame to the database, in this process and without a network, on a sample estate.
class AttackedServer {
public:
    AttackedServer();

    // Carries out what the frame asks for. Throws std::runtime_error when what is dropped or refused has changed
    // something; anything else that comes out is a fault of the server's as well.
    Taking take(std::uint8_t count, const Bytes& data);

    // The words of the last refusal.
    [[nodiscard]] const std::string& refusal() const { return refusal_; }

    // Empty as long as the database is sound.
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
