#pragma once

#include "protocol/WireOrder.h"
#include "protocol/rules/PriceEntryRecord.h"
#include "protocol/rules/PricePlanRecord.h"

namespace protocol {

// Adds or changes a price plan together with all of its prices, which replace those that it had.
struct WritePricePlanRequest {
    static constexpr std::uint16_t opcode = 70;
    static constexpr std::string_view form = "action 1 adds, 2 updates";
    static constexpr std::array<std::uint8_t, 2> actions = {1, 2};

    std::uint8_t action = 1;
    PricePlanRecord plan;
    std::vector<PriceEntryRecord> entries;

    static constexpr auto fields =
        wireOrder(field("action", &WritePricePlanRequest::action), field("plan", &WritePricePlanRequest::plan),
                  field("entries", &WritePricePlanRequest::entries));

    bool operator==(const WritePricePlanRequest&) const = default;
};

} // namespace protocol
