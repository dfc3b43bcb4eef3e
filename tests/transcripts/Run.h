#pragma once

#include "tests/transcripts/Host.h"
#include "tests/transcripts/SampleServer.h"

#include <functional>
#include <memory>

namespace transcripts {

using MakeHost = std::function<std::unique_ptr<Host>(const SampleServer& server)>;

// Plays the transcript that the arguments name, on a server of its own; 0 when everything is as it says, else 1 with
// the differences on standard output. After "--update" writes into the file what came.
int playTranscript(int count, const char* const* arguments, const MakeHost& makeHost);

} // namespace transcripts
