#pragma once

#include "client/RequestObserver.h"

namespace ctl {

// Lets only commands pass that read, if that is wanted; another observer is told of those that pass.
class ReadOnlyGate final : public client::RequestObserver {
public:
    // The next observer outlives it.
    explicit ReadOnlyGate(client::RequestObserver& next) : next_(next) {}

    void closeForWrites(bool closed) { closed_ = closed; }
    // Throws Failure (refused) for a command that may write while it is closed for them.
    void requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) override;

private:
    client::RequestObserver& next_;
    bool closed_ = false;
};

// Whether the command changes nothing on the server.
[[nodiscard]] bool onlyReads(const protocol::Command& command);

} // namespace ctl
