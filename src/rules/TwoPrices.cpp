#include "rules/TwoPrices.h"

namespace rules {

TwoPrices::TwoPrices(forms::Container& container, const platform::Locale& locale, std::u16string_view label)
    : group(container, label), bw(group, locale, u"B/W"), color(group, locale, u"Color") {}

void TwoPrices::show(const protocol::PriceEntryRecord& row) {
    bw.show(row.bwSimplex);
    color.show(row.colorSimplex);
}

void TwoPrices::read(protocol::PriceEntryRecord& row) const {
    row.bwSimplex = bw.price();
    row.colorSimplex = color.price();
}

} // namespace rules
