#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/ShortIdRecord.h"

namespace protocol {

// Adds a short id.
struct AddShortIdRequest {
    static constexpr std::uint16_t opcode = 83;

    ShortIdRecord shortId;

    static constexpr auto fields = wireOrder(field("shortId", &AddShortIdRequest::shortId));

    bool operator==(const AddShortIdRequest&) const = default;
};

} // namespace protocol
