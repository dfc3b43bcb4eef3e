#pragma once

#include "protocol/Catalogue.h"
#include "protocol/FieldValue.h"

#include <vector>

namespace client {

// The reply to a command called by its number.
struct RawReply {
    const protocol::Command* command = nullptr;
    bool complete = true;                       // false: the reply did not arrive or was cut short
    std::vector<protocol::FieldRecord> records; // the records of a list, or the one record of a single reply
};

} // namespace client
