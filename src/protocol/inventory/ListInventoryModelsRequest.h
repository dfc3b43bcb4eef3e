#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Lists the printer models that a report has found.
struct ListInventoryModelsRequest {
    static constexpr std::uint16_t opcode = 43;

    std::uint16_t listKind = 0; // one of modelListKind
    std::string id;             // of the report

    static constexpr auto fields = wireOrder(field("listKind", &ListInventoryModelsRequest::listKind),
                                             field("id", &ListInventoryModelsRequest::id));

    bool operator==(const ListInventoryModelsRequest&) const = default;
};

} // namespace protocol
