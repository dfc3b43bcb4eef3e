#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// What print jobs cost: the general figures of a plan, whose prices for papers and areas are PriceEntryRecords.
struct PricePlanRecord {
    std::string id;             // uuid text, made by the console
    std::uint8_t payMethod = 0; // 0 log, 1 wallet, 2 external debit, 3 wallet and external debit
    wire::WideString name;
    wire::WideString comment;
    float defaultPrice = 0;
    float colorMultiplier = 0;
    float duplexMultiplier = 0;
    float copyMultiplier = 0;
    float scanMultiplier = 0;
    std::uint32_t vat = 0; // in hundredths of a percent: 2500 is 25 %

    static constexpr auto fields =
        wireOrder(field("id", &PricePlanRecord::id), field("payMethod", &PricePlanRecord::payMethod),
                  field("name", &PricePlanRecord::name), field("comment", &PricePlanRecord::comment),
                  field("defaultPrice", &PricePlanRecord::defaultPrice),
                  field("colorMultiplier", &PricePlanRecord::colorMultiplier),
                  field("duplexMultiplier", &PricePlanRecord::duplexMultiplier),
                  field("copyMultiplier", &PricePlanRecord::copyMultiplier),
                  field("scanMultiplier", &PricePlanRecord::scanMultiplier), field("vat", &PricePlanRecord::vat));

    bool operator==(const PricePlanRecord&) const = default;
};

} // namespace protocol
