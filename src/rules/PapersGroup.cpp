#include "rules/PapersGroup.h"

#include "client/rules/NewRecord.h"
#include "protocol/rules/PricePlan.h"

#include <algorithm>
#include <utility>

namespace rules {
namespace {

namespace priceKind = protocol::priceKind;

using protocol::PriceEntryRecord;

// A code that is not in the list selects nothing.
template <class Codes>
void selectCode(forms::DropList& list, const Codes& codes, std::uint16_t code) {
    const auto found = std::ranges::find(codes, code, &protocol::PaperCode::code);
    list.select(static_cast<std::size_t>(found - codes.begin()));
}

bool canBeEdited(std::uint8_t kind) {
    return kind <= priceKind::areaPrint && kind != priceKind::other;
}

} // namespace

PapersGroup::PapersGroup(forms::Container& container, const platform::Locale& locale)
    : group(container, u"Papers"), fields(group, locale), locale_(locale) {
    unselectButton.setBeside(prices);
    addButton.setBeside(prices);
    removeButton.setBeside(prices);
    prices.onSelect = [this] { rowSelected(); };
    unselectButton.onPress = [this] { unselect(); };
    addButton.onPress = [this] { updating() ? update() : add(); };
    removeButton.onPress = [this] { remove(); };
    paper.onChoose = area.onChoose = multiplierType.onSelect = [this] { follow(); };
}

void PapersGroup::open() {
    prices.setColumns(PriceTable::columns());
    for (const auto& size : protocol::paperSizes) {
        paperList.addItem(wire::WideString(size.label));
    }
    for (const auto& unit : protocol::areaUnits) {
        areaList.addItem(wire::WideString(unit.label));
    }
    multiplierType.addItem(u"Multiplier");
    multiplierType.addItem(u"Absolute Price");
    multiplierType.select(0);
    paper.choose();
    follow();
}

void PapersGroup::setRows(std::vector<PriceEntryRecord> rows) {
    table_.setRows(std::move(rows));
    finish();
}

const protocol::PaperCode* PapersGroup::chosenPaper() const {
    const auto row = area.chosen() ? areaList.selection() : paperList.selection();
    if (!row) {
        return nullptr;
    }
    return area.chosen() ? &protocol::areaUnits.at(*row) : &protocol::paperSizes.at(*row);
}

PriceEntryRecord PapersGroup::newRow(std::uint8_t kind) const {
    auto row = client::newRecord<PriceEntryRecord>();
    row.kind = kind;
    row.paperCode = chosenPaper()->code;
    row.paperName = wire::toCodePage(chosenPaper()->label);
    fields.read(row);
    return row;
}

void PapersGroup::rowSelected() {
    fields.forget();
    const auto selected = prices.selection();
    if (!selected || rows()[*selected].paperName.empty()) {
        unselect();
        return;
    }
    updated_ = selected;
    showRow(rows()[*selected]);
    follow();
}

void PapersGroup::showRow(const PriceEntryRecord& row) {
    if (!canBeEdited(row.kind)) {
        return;
    }
    multiplierType.select(priceKind::isMultiplier(row.kind) ? 0 : 1);
    if (priceKind::isArea(row.kind)) {
        area.choose();
        selectCode(areaList, protocol::areaUnits, row.paperCode);
    } else {
        paper.choose();
        selectCode(paperList, protocol::paperSizes, row.paperCode);
    }
    fields.show(row);
}

void PapersGroup::unselect() {
    fields.forget();
    prices.select(std::nullopt);
    updated_.reset();
    paper.choose();
    follow();
}

void PapersGroup::add() {
    if (!isAbsolute()) {
        addMultiplier();
        finish();
    } else if (PriceBox* const empty = fields.firstEmptyAbsolute(); empty == nullptr) {
        addAbsolute();
        finish();
    } else if (empty->box.reachable()) {
        empty->box.setFocus();
    }
}

void PapersGroup::addMultiplier() {
    if (!fields.basePrice.empty() && chosenPaper() != nullptr) {
        table_.add(newRow(area.chosen() ? priceKind::areaMultiplier : priceKind::multiplier));
    }
}

// All ten prices are required, even for an area, which uses only two of them. A new row of an area takes over the
// prices for duplex, which are not shown. Both must stay.
void PapersGroup::addAbsolute() {
    if (chosenPaper() == nullptr) {
        return;
    }
    if (area.chosen()) {
        auto row = newRow(priceKind::areaPrint);
        fields.print.read(row);
        table_.add(std::move(row));
        return;
    }
    for (const auto kind : {priceKind::print, priceKind::copy, priceKind::scan}) {
        table_.add(newRow(kind));
    }
}

void PapersGroup::update() {
    auto row = rows().at(*updated_);
    if (const auto* const chosen = chosenPaper(); chosen != nullptr) {
        row.paperCode = chosen->code;
        row.paperName = wire::toCodePage(chosen->label);
    }
    fields.read(row);
    table_.replace(*updated_, std::move(row));
    finish();
}

void PapersGroup::remove() {
    table_.removePaper(rows().at(*updated_).paperCode);
    multiplierType.select(0);
    finish();
}

void PapersGroup::finish() {
    fields.forget();
    prices.setRows(table_.listRows(locale_));
    updated_.reset();
    follow();
}

void PapersGroup::follow() {
    const bool adding = !updating();
    const bool onArea = area.chosen();
    unselectButton.setEnabled(!adding);
    removeButton.setEnabled(!adding);
    addButton.setLabel(adding ? u"Add" : u"Update");
    addButton.setEnabled(adding || canBeEdited(rows()[*updated_].kind));
    paper.setEnabled(adding);
    area.setEnabled(adding);
    paperList.setEnabled(adding && !onArea);
    areaList.setEnabled(adding && onArea);
    multiplierType.setEnabled(adding);
    fields.showAbsolute(isAbsolute());
    if (adding) {
        fields.enableForAdding(onArea);
    } else {
        fields.enableForUpdate(rows()[*updated_].kind);
    }
    if (onChange) {
        onChange();
    }
}

} // namespace rules
