#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/ShortIdRecord.h"

namespace protocol {

// Changes a short id.
struct UpdateShortIdRequest {
    static constexpr std::uint16_t opcode = 84;

    ShortIdRecord shortId;

    static constexpr auto fields = wireOrder(field("shortId", &UpdateShortIdRequest::shortId));

    bool operator==(const UpdateShortIdRequest&) const = default;
};

} // namespace protocol
