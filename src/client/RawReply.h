#pragma once

#include "protocol/Catalogue.h"
#include "protocol/FieldValue.h"

#include <vector>

namespace client {

// What a command called by its number brought back.
struct RawReply {
    const protocol::Command* command = nullptr;
    bool complete = true;                       // false: the reply did not come, or broke off
    std::vector<protocol::FieldRecord> records; // of a list its records, of a single reply one
};

} // namespace client
