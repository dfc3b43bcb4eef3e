#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Adds (without an id), changes, or (with an id and no texts at all) deletes a program.
struct WriteAlarmProgramRequest {
    static constexpr std::uint16_t opcode = 28;

    std::string id;
    wire::WideString name;
    wire::WideString comment;
    wire::WideString createdBy;

    static constexpr auto fields = wireOrder(
        field("id", &WriteAlarmProgramRequest::id), field("name", &WriteAlarmProgramRequest::name),
        field("comment", &WriteAlarmProgramRequest::comment), field("createdBy", &WriteAlarmProgramRequest::createdBy));

    bool operator==(const WriteAlarmProgramRequest&) const = default;
};

} // namespace protocol
