#pragma once

#include "forms/Group.h"
#include "protocol/rules/PricePlan.h"
#include "rules/PriceBox.h"

namespace rules {

// The four prices of printing or of copying on one paper.
class FourPrices {
public:
    FourPrices(forms::Container& container, const platform::Locale& locale, std::u16string_view label);

    void show(const protocol::PriceEntryRecord& row);
    void read(protocol::PriceEntryRecord& row) const;
    void enableDuplex(bool enabled);

    forms::Group group;
    PriceBox bwSimplex;
    PriceBox bwDuplex;
    PriceBox colorSimplex;
    PriceBox colorDuplex;
};

} // namespace rules
