#pragma once

#include "hosts/ctl/Failure.h"
#include "shell/ShellObserver.h"

#include <optional>

namespace ctl {

// Remembers the first command that failed, since the tree goes on without a word when one does.
class FailureWatch final : public shell::ShellObserver {
public:
    void commandEnded(const client::CommandReport& report) override;
    void handlerStopped(std::string_view where, std::string_view what) override;

    // Throws it, once.
    void check();
    void forget() { first_.reset(); }

private:
    std::optional<Failure> first_;
};

} // namespace ctl
