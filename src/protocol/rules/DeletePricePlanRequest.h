#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// Deletes a price plan with its prices.
struct DeletePricePlanRequest {
    static constexpr std::uint16_t opcode = 70;
    static constexpr std::string_view form = "action 3 deletes";
    static constexpr std::array<std::uint8_t, 1> actions = {3};

    std::uint8_t action = 3;
    std::string id;

    static constexpr auto fields =
        wireOrder(field("action", &DeletePricePlanRequest::action), field("id", &DeletePricePlanRequest::id));

    bool operator==(const DeletePricePlanRequest&) const = default;
};

} // namespace protocol
