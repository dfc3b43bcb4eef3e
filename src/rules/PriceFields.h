#pragma once

#include "protocol/rules/PricePlan.h"
#include "rules/FourPrices.h"
#include "rules/TwoPrices.h"

#include <array>

namespace rules {

// The boxes for the prices of a paper or an area: one base price, or absolute prices for print, copy and scan.
class PriceFields {
public:
    PriceFields(forms::Container& container, const platform::Locale& locale);

    // Shows the boxes for absolute prices, or the box for the base price.
    void showAbsolute(bool absolute);
    // Areas have no prices for duplex, copy and scan.
    void enableForAdding(bool area);
    // Enables only what belongs to the kind of the row.
    void enableForUpdate(protocol::PriceKind kind);

    void show(const protocol::PriceEntryRecord& row);
    // Stores the prices of the row's kind, and 0 in the others.
    void read(protocol::PriceEntryRecord& row) const;
    // Keeps the texts, which from now on are read as numbers: the exact prices of one row are not those of another.
    void forget();
    // The first of the ten boxes for absolute prices that is empty; null when all are filled.
    PriceBox* firstEmptyAbsolute();

    PriceBox basePrice;
    FourPrices print;
    FourPrices copy;
    TwoPrices scan;

private:
    std::array<PriceBox*, 10> absoluteBoxes();
};

} // namespace rules
