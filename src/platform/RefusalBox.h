#pragma once

#include "client/ServerMessages.h"
#include "platform/UserInterface.h"

namespace platform {

// Shows what the server refuses as a message box, as the server wants it.
class RefusalBox final : public client::ServerMessages {
public:
    // The user interface outlives this.
    explicit RefusalBox(UserInterface& ui) : ui_(ui) {}

    void show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) override;

private:
    UserInterface& ui_;
};

} // namespace platform
