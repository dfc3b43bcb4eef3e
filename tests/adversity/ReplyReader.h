#pragma once

#include "protocol/Catalogue.h"
#include "tests/adversity/MemoryPeer.h"

#include <string>

namespace adversity {

// How the console's reading of a reply ended.
struct ReadOutcome {
    bool whole = false;  // every announced message arrived and was read
    std::string failure; // otherwise: the text, documented in the reader's contract, with which it ended
    std::string breach;  // an outcome that the contract does not allow
    Bytes read;          // the records, written again
};

// Reads the reply to a command, whose records have this layout, as the console does: over its transport and with its
// reader, in the form that the catalogue states.
[[nodiscard]] ReadOutcome readReply(const protocol::Command& command, const protocol::RecordLayout& layout,
                                    MemoryPeer& peer);

} // namespace adversity
