#pragma once

#include "client/ServerMessages.h"
#include "platform/UserInterface.h"

namespace platform {

// Shows a refusal by the server as a message box.
class RefusalBox final : public client::ServerMessages {
public:
    // The user interface outlives this.
    explicit RefusalBox(UserInterface& ui) : ui_(ui) {}

    void show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) override;

private:
    UserInterface& ui_;
};

} // namespace platform
