#pragma once

#include "wire/Text.h"

#include <cstdint>

namespace client {

// Shows the user a refusal by the server.
class ServerMessages {
public:
    virtual ~ServerMessages() = default;

    // Shows the message box; style is that of the platform's message boxes.
    virtual void show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) = 0;
};

} // namespace client
