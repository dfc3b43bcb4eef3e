#pragma once

#include "wire/Text.h"

#include <cstdint>

namespace client {

// How a refusal by the server reaches the user.
class ServerMessages {
public:
    virtual ~ServerMessages() = default;

    // Shows the message box as the server wants it; style is that of the platform's message boxes.
    virtual void show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) = 0;
};

} // namespace client
