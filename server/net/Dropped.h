#pragma once

#include <stdexcept>

namespace server {

// The peer broke the protocol, disconnected or took too long: the connection ends, and the text is the reason.
class Dropped : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

} // namespace server
