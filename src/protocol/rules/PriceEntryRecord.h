#pragma once

#include "protocol/WireOrder.h"

namespace protocol {

// The price of a paper or of a unit of area within a price plan. A price without a meaning for the kind is 0.
struct PriceEntryRecord {
    std::string id;        // uuid text, made by the console
    std::string paperName; // label of the paper or area, in 8-bit text
    std::uint8_t kind =
        0; // of a paper: 0 multiplier, 1 print, 2 copy, 3 scan, 4 other; of an area: 5 multiplier, 6 print
    std::uint16_t paperCode = 0; // of paperSizes or areaUnits
    float basePrice = 0;         // the only price of a multiplier
    float bwSimplex = 0;
    float bwDuplex = 0;
    float colorSimplex = 0;
    float colorDuplex = 0;

    static constexpr auto fields = wireOrder(
        field("id", &PriceEntryRecord::id), field("paperName", &PriceEntryRecord::paperName),
        field("kind", &PriceEntryRecord::kind), field("paperCode", &PriceEntryRecord::paperCode),
        field("basePrice", &PriceEntryRecord::basePrice), field("bwSimplex", &PriceEntryRecord::bwSimplex),
        field("bwDuplex", &PriceEntryRecord::bwDuplex), field("colorSimplex", &PriceEntryRecord::colorSimplex),
        field("colorDuplex", &PriceEntryRecord::colorDuplex));

    bool operator==(const PriceEntryRecord&) const = default;
};

} // namespace protocol
