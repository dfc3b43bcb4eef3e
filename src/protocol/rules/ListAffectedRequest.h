#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for all affected users and groups.
struct ListAffectedRequest {
    static constexpr std::uint16_t opcode = 59;

    std::string filter; // empty for all

    static constexpr auto fields = wireOrder(field("filter", &ListAffectedRequest::filter));

    bool operator==(const ListAffectedRequest&) const = default;
};

} // namespace protocol
