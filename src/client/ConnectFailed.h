#pragma once

#include <stdexcept>

namespace client {

// The server cannot be reached.
class ConnectFailed : public std::runtime_error {
public:
    ConnectFailed() : std::runtime_error("Failed to connect to server") {}
};

} // namespace client
