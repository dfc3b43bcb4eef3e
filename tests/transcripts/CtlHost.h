#pragma once

#include "tests/transcripts/Host.h"
#include "tests/transcripts/SampleServer.h"

namespace transcripts {

// The program vantrelctl in a real shell. It remembers the login and has the password in a variable.
class CtlHost final : public Host {
public:
    // Outlives it.
    explicit CtlHost(const SampleServer& server) : server_(server) {}

    Outcome run(const std::string& line) override;

private:
    void rememberLogin();

    const SampleServer& server_;
    std::uint16_t rememberedPort_ = 0;
};

} // namespace transcripts
