#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Lists the printers and queues that a report has found.
struct ListInventoryPrintersRequest {
    static constexpr std::uint16_t opcode = 44;

    std::uint16_t listKind = 0; // one of foundListKind
    std::string id;             // of a report, or a text to filter by

    static constexpr auto fields = wireOrder(field("listKind", &ListInventoryPrintersRequest::listKind),
                                             field("id", &ListInventoryPrintersRequest::id));

    bool operator==(const ListInventoryPrintersRequest&) const = default;
};

} // namespace protocol
