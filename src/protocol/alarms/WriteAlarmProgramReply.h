#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// The id of the program that was written.
struct WriteAlarmProgramReply {
    std::string id; // empty when it was refused

    static constexpr auto fields = wireOrder(field("id", &WriteAlarmProgramReply::id));

    bool operator==(const WriteAlarmProgramReply&) const = default;
};

} // namespace protocol
