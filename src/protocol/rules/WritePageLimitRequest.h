#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/PageLimitRecord.h"

namespace protocol {

// Adds or changes a page limit.
struct WritePageLimitRequest {
    static constexpr std::uint16_t opcode = 64;
    static constexpr std::string_view form = "action 1 adds a page limit, 2 updates one";
    static constexpr std::array<std::uint8_t, 2> actions = {1, 2};

    std::uint8_t action = 1;
    PageLimitRecord limit;

    static constexpr auto fields =
        wireOrder(field("action", &WritePageLimitRequest::action), field("limit", &WritePageLimitRequest::limit));

    bool operator==(const WritePageLimitRequest&) const = default;
};

} // namespace protocol
