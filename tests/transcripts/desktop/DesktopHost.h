#pragma once

#include "hosts/ctl/Options.h"
#include "tests/transcripts/Host.h"
#include "tests/transcripts/SampleServer.h"

namespace transcripts {

// The desktop: every command line gets a program of its own, in which a person does with mouse and keyboard what it
// says and reads from the screen what it prints.
class DesktopHost final : public Host {
public:
    // Outlives it.
    explicit DesktopHost(const SampleServer& server) : server_(server) {}

    Outcome run(const std::string& line) override;

private:
    const SampleServer& server_;
};

} // namespace transcripts
