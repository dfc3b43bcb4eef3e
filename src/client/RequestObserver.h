#pragma once

#include "protocol/Catalogue.h"

#include <cstdint>
#include <span>

namespace client {

// Notified of what each command asks for, on the thread that runs it. The message of the login contains no credentials.
class RequestObserver {
public:
    virtual ~RequestObserver() = default;

    // The data is the whole message of the fields, header included; empty for a command without fields. For a command
    // without a reply this is called before anything else, so that the observer may run commands of its own here; for
    // any other command it is called while the command runs. What it throws ends the command.
    virtual void requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) = 0;
};

} // namespace client
