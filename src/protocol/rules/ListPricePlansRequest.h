#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Asks for one price plan or for all.
struct ListPricePlansRequest {
    static constexpr std::uint16_t opcode = 69;

    std::string filter; // the id of a plan, empty for all

    static constexpr auto fields = wireOrder(field("filter", &ListPricePlansRequest::filter));

    bool operator==(const ListPricePlansRequest&) const = default;
};

} // namespace protocol
