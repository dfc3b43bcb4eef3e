#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for the programs of a kind, or of them for the one with the id in the filter.
struct ListAlarmProgramsRequest {
    static constexpr std::uint16_t opcode = 27;

    std::uint8_t kind = 0; // see alarmProgramKind
    std::string filter;

    static constexpr auto fields =
        wireOrder(field("kind", &ListAlarmProgramsRequest::kind), field("filter", &ListAlarmProgramsRequest::filter));

    bool operator==(const ListAlarmProgramsRequest&) const = default;
};

} // namespace protocol
