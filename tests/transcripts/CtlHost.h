#pragma once

#include "tests/transcripts/Host.h"
#include "tests/transcripts/SampleServer.h"

namespace transcripts {

// The program vantrelctl.
class CtlHost final : public Host {
public:
    // Outlives it.
    explicit CtlHost(const SampleServer& server) : server_(server) {}

    Outcome run(const std::vector<std::string>& words) override;

private:
    const SampleServer& server_;
};

} // namespace transcripts
