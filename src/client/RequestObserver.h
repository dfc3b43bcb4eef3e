#pragma once

#include "protocol/Catalogue.h"

#include <cstdint>
#include <span>

namespace client {

// Is told what each command asks for, on the thread that runs it. The message of the login holds no credentials.
class RequestObserver {
public:
    virtual ~RequestObserver() = default;

    // The data is the whole message of the fields, header included; empty for a command without fields. Of a command
    // without a reply this comes before anything else of it, so that commands of one's own may run here; of any other
    // one it comes while the command runs. What it throws ends the command.
    virtual void requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) = 0;
};

} // namespace client
