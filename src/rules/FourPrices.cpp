#include "rules/FourPrices.h"

namespace rules {

FourPrices::FourPrices(forms::Container& container, const platform::Locale& locale, std::u16string_view label)
    : group(container, label),
      bwSimplex(group, locale, u"B/W Simplex"),
      bwDuplex(group, locale, u"B/W Duplex"),
      colorSimplex(group, locale, u"Color Simplex"),
      colorDuplex(group, locale, u"Color Duplex") {}

void FourPrices::show(const protocol::PriceEntryRecord& row) {
    bwSimplex.show(row.bwSimplex);
    bwDuplex.show(row.bwDuplex);
    colorSimplex.show(row.colorSimplex);
    colorDuplex.show(row.colorDuplex);
}

void FourPrices::read(protocol::PriceEntryRecord& row) const {
    row.bwSimplex = bwSimplex.price();
    row.bwDuplex = bwDuplex.price();
    row.colorSimplex = colorSimplex.price();
    row.colorDuplex = colorDuplex.price();
}

void FourPrices::enableDuplex(bool enabled) {
    bwDuplex.box.setEnabled(enabled);
    colorDuplex.box.setEnabled(enabled);
}

} // namespace rules
