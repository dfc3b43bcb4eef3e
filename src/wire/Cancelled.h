#pragma once

#include <stdexcept>

namespace wire {

// The user cancelled a command that was waiting for the server.
class Cancelled : public std::runtime_error {
public:
    Cancelled() : std::runtime_error("Cancelled") {}
};

} // namespace wire
