#pragma once

#include "hosts/ctl/Failure.h"
#include "shell/ShellObserver.h"

#include <optional>

namespace ctl {

// Remembers the first command that failed, because the tree does not report failures.
class FailureWatch final : public shell::ShellObserver {
public:
    void commandEnded(const client::CommandReport& report) override;
    void handlerStopped(std::string_view where, std::string_view what) override;

    // Throws that failure, once.
    void check();
    void forget() { first_.reset(); }

private:
    std::optional<Failure> first_;
};

} // namespace ctl
