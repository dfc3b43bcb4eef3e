#include "rules/PriceFields.h"

#include "protocol/rules/PricePlan.h"

#include <algorithm>

namespace rules {

using protocol::PriceKind;

PriceFields::PriceFields(forms::Container& container, const platform::Locale& locale)
    : basePrice(container, locale, u"Base Price"),
      print(container, locale, u"Print"),
      copy(container, locale, u"Copy"),
      scan(container, locale, u"Scan") {
    copy.group.setBeside(print.group);
    scan.group.setBeside(print.group);
}

void PriceFields::showAbsolute(bool absolute) {
    basePrice.box.setVisible(!absolute);
    print.group.setVisible(absolute);
    copy.group.setVisible(absolute);
    scan.group.setVisible(absolute);
}

void PriceFields::enableForAdding(bool area) {
    print.group.setEnabled(true);
    print.enableDuplex(!area);
    copy.group.setEnabled(!area);
    scan.group.setEnabled(!area);
}

void PriceFields::enableForUpdate(PriceKind kind) {
    print.group.setEnabled(kind == PriceKind::print || kind == PriceKind::areaPrint);
    print.enableDuplex(kind == PriceKind::print);
    copy.group.setEnabled(kind == PriceKind::copy);
    scan.group.setEnabled(kind == PriceKind::scan);
}

void PriceFields::show(const protocol::PriceEntryRecord& row) {
    switch (row.kind) {
    case PriceKind::multiplier:
    case PriceKind::areaMultiplier:
        basePrice.show(row.basePrice);
        break;
    case PriceKind::print:
    case PriceKind::areaPrint:
        print.show(row);
        break;
    case PriceKind::copy:
        copy.show(row);
        break;
    case PriceKind::scan:
        scan.show(row);
        break;
    default:
        break;
    }
}

void PriceFields::read(protocol::PriceEntryRecord& row) const {
    row.basePrice = row.bwSimplex = row.bwDuplex = row.colorSimplex = row.colorDuplex = 0;
    switch (row.kind) {
    case PriceKind::multiplier:
    case PriceKind::areaMultiplier:
        row.basePrice = basePrice.price();
        break;
    case PriceKind::print:
        print.read(row);
        break;
    case PriceKind::copy:
        copy.read(row);
        break;
    case PriceKind::scan:
        scan.read(row);
        break;
    case PriceKind::areaPrint:
        row.bwSimplex = print.bwSimplex.price();
        row.colorSimplex = print.colorSimplex.price();
        break;
    default:
        break;
    }
}

void PriceFields::forget() {
    basePrice.forget();
    for (PriceBox* box : absoluteBoxes()) {
        box->forget();
    }
}

std::array<PriceBox*, 10> PriceFields::absoluteBoxes() {
    return {&print.bwSimplex, &print.bwDuplex,    &print.colorSimplex, &print.colorDuplex, &copy.bwSimplex,
            &copy.bwDuplex,   &copy.colorSimplex, &copy.colorDuplex,   &scan.bw,           &scan.color};
}

PriceBox* PriceFields::firstEmptyAbsolute() {
    const auto boxes = absoluteBoxes();
    const auto* const found = std::ranges::find_if(boxes, &PriceBox::empty);
    return found != boxes.end() ? *found : nullptr;
}

} // namespace rules
