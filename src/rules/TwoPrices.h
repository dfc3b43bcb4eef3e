#pragma once

#include "forms/Group.h"
#include "protocol/rules/PricePlan.h"
#include "rules/PriceBox.h"

namespace rules {

// The prices of scanning on one paper.
class TwoPrices {
public:
    TwoPrices(forms::Container& container, const platform::Locale& locale, std::u16string_view label);

    void show(const protocol::PriceEntryRecord& row);
    void read(protocol::PriceEntryRecord& row) const;

    forms::Group group;
    PriceBox bw;
    PriceBox color;
};

} // namespace rules
