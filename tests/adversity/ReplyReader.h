#pragma once

#include "protocol/Catalogue.h"
#include "tests/adversity/MemoryPeer.h"

#include <string>

namespace adversity {

// How the console's reading of a reply ended.
struct ReadOutcome {
    bool whole = false;  // every message that was announced came, and was read
    std::string failure; // else: the text of the reader's contract that it ended with
    std::string breach;  // an end that the contract does not know
    Bytes read;          // the records, written again
};

// Reads the reply to a command, whose records have this layout, as the console does: over its transport and with its
// reader, in the form of the catalogue's row.
[[nodiscard]] ReadOutcome readReply(const protocol::Command& command, const protocol::RecordLayout& layout,
                                    MemoryPeer& peer);

} // namespace adversity
