#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Lists migration plans: all, those of a report, or one.
struct ListSchemasRequest {
    static constexpr std::uint16_t opcode = 37;

    std::string id;             // of a report, or of the one plan; empty for all
    std::uint32_t listKind = 0; // one of schemaListKind

    static constexpr auto fields =
        wireOrder(field("id", &ListSchemasRequest::id), field("listKind", &ListSchemasRequest::listKind));

    bool operator==(const ListSchemasRequest&) const = default;
};

} // namespace protocol
