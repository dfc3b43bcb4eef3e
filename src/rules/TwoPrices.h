#pragma once

#include "console/Group.h"
#include "protocol/rules/PriceEntryRecord.h"
#include "rules/PriceBox.h"

namespace rules {

// The prices of scanning on one paper.
class TwoPrices {
public:
    TwoPrices(console::Container& container, const console::Locale& locale, std::u16string_view label);

    void show(const protocol::PriceEntryRecord& row);
    void read(protocol::PriceEntryRecord& row) const;

    console::Group group;
    PriceBox bw;
    PriceBox color;
};

} // namespace rules
