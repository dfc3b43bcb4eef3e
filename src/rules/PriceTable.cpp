#include "rules/PriceTable.h"

#include "protocol/rules/PricePlan.h"
#include "rules/PriceText.h"

#include <algorithm>
#include <array>
#include <utility>

namespace rules {
namespace {

using protocol::PriceEntryRecord;
using protocol::PriceKind;

// The prices of a row in the order of the columns, and which of them matter for its kind.
struct Shown {
    std::array<float, 5> prices;
    std::array<bool, 5> meant;
};

Shown shownOf(const PriceEntryRecord& row) {
    const bool base = isMultiplier(row.kind);
    const bool simplex = isAbsoluteOfPaper(row.kind) || row.kind == PriceKind::areaPrint;
    const bool duplex = isAbsoluteOfPaper(row.kind) && row.kind != PriceKind::scan;
    return {{row.basePrice, row.bwSimplex, row.bwDuplex, row.colorSimplex, row.colorDuplex},
            {base, simplex, duplex, simplex, duplex}};
}

// Rows of the same paper for print, copy and scan have the same columns.
wire::WideString hintOf(PriceKind kind) {
    switch (kind) {
    case PriceKind::multiplier:
        return u"Multiplier of a paper";
    case PriceKind::print:
        return u"Prices of printing";
    case PriceKind::copy:
        return u"Prices of copying";
    case PriceKind::scan:
        return u"Prices of scanning";
    case PriceKind::areaMultiplier:
        return u"Multiplier of an area";
    case PriceKind::areaPrint:
        return u"Prices of printing on an area";
    default:
        return {};
    }
}

bool excludes(const PriceEntryRecord& row, const PriceEntryRecord& added) {
    const bool ofDifferentKinds =
        isAbsoluteOfPaper(row.kind) && isAbsoluteOfPaper(added.kind) && row.kind != added.kind;
    return row.paperCode == added.paperCode && !ofDifferentKinds;
}

} // namespace

void PriceTable::add(PriceEntryRecord row) {
    if (std::ranges::none_of(rows_, [&](const auto& other) { return excludes(other, row); })) {
        rows_.push_back(std::move(row));
    }
}

void PriceTable::replace(std::size_t row, PriceEntryRecord with) {
    rows_.at(row) = std::move(with);
}

void PriceTable::removePaper(std::uint16_t paperCode) {
    std::erase_if(rows_, [&](const auto& row) { return row.paperCode == paperCode; });
}

std::vector<forms::ListColumn> PriceTable::columns() {
    constexpr bool number = true;
    return {{u"Paper type", 85},         {u"Base price", 85, number},    {u"B/W Simplex", 85, number},
            {u"B/W Duplex", 85, number}, {u"Color Simplex", 85, number}, {u"Color Duplex", 87, number}};
}

std::vector<forms::ListRow> PriceTable::listRows(const platform::Locale& locale) const {
    std::vector<forms::ListRow> lines;
    for (const auto& row : rows_) {
        forms::ListRow line{.cells = {wire::fromCodePage(row.paperName)}, .data = row.id, .hint = hintOf(row.kind)};
        const Shown shown = shownOf(row);
        for (std::size_t i = 0; i < shown.prices.size(); ++i) {
            line.cells.push_back(shown.meant[i] ? formatPrice(locale, shown.prices[i]) : u"N/A");
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace rules
