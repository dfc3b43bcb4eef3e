#pragma once

#include "client/ServerMessages.h"
#include "console/UserInterface.h"

namespace shell {

// Shows what the server refuses as a message box, as the server wants it.
class RefusalBox final : public client::ServerMessages {
public:
    // The user interface outlives this.
    explicit RefusalBox(console::UserInterface& ui) : ui_(ui) {}

    void show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) override;

private:
    console::UserInterface& ui_;
};

} // namespace shell
