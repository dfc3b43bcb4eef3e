#pragma once

#include "tests/support/ScriptedServer.h"
#include "wire/Text.h"

#include <cstdint>
#include <string>
#include <vector>

namespace support {

// A server on a real loopback socket that handles one login after the other and answers each with a status chosen by
// the test. It ignores the password.
class FakeLoginServer {
public:
    explicit FakeLoginServer(const std::vector<std::uint16_t>& statuses);

    std::uint16_t port() const { return server_.port(); }
    wire::WideString portText() const { return wire::toWide(std::to_string(port())); }
    // Waits until all logins are done; returns the first failure, empty when there was none.
    std::string finish() { return server_.finish(); }

private:
    ScriptedServer server_;
};

} // namespace support
