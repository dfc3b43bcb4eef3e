#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Lists the inventory reports.
struct ListInventoryReportsRequest {
    static constexpr std::uint16_t opcode = 40;

    static constexpr auto fields = wireOrder();

    bool operator==(const ListInventoryReportsRequest&) const = default;
};

} // namespace protocol
