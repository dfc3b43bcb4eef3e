#include "rules/PapersGroup.h"

#include "client/rules/NewRecord.h"
#include "protocol/rules/PaperCode.h"
#include "protocol/rules/PricePlan.h"

#include <utility>

namespace rules {
namespace {

using protocol::PriceEntryRecord;
using protocol::PriceKind;

// A code that is not in the list selects nothing.
void selectCode(forms::ChoiceList<std::uint16_t>& list, std::uint16_t code) {
    list.select(std::nullopt);
    list.selectValue(code);
}

bool canBeEdited(PriceKind kind) {
    return isKnown(kind) && kind != PriceKind::other;
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
    prices.setColumns(PriceTable::columns());
    paperList.offer(protocol::paperSizes);
    areaList.offer(protocol::areaUnits);
    paper.choose();
    follow();
    paper.onChoose = area.onChoose = multiplierType.onSelect = [this] { follow(); };
}

void PapersGroup::setRows(std::vector<PriceEntryRecord> rows) {
    table_.setRows(std::move(rows));
    finish();
}

void PapersGroup::takeCode(PriceEntryRecord& row) const {
    if (const auto code = codes().value()) {
        row.paperCode = *code;
        row.paperName = wire::toCodePage(codes().selectedText());
    }
}

PriceEntryRecord PapersGroup::newRow(PriceKind kind) const {
    auto row = client::newRecord<PriceEntryRecord>();
    row.kind = kind;
    takeCode(row);
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
    multiplierType.select(isMultiplier(row.kind) ? 0 : 1);
    if (isArea(row.kind)) {
        area.choose();
        selectCode(areaList, row.paperCode);
    } else {
        paper.choose();
        selectCode(paperList, row.paperCode);
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
    if (!fields.basePrice.empty() && codes().value()) {
        table_.add(newRow(area.chosen() ? PriceKind::areaMultiplier : PriceKind::multiplier));
    }
}

// All ten prices are required, even for an area, which uses only two of them. A new row of an area takes over the
// prices for duplex, which are not shown. Both must stay.
void PapersGroup::addAbsolute() {
    if (!codes().value()) {
        return;
    }
    if (area.chosen()) {
        auto row = newRow(PriceKind::areaPrint);
        fields.print.read(row);
        table_.add(std::move(row));
        return;
    }
    for (const auto kind : {PriceKind::print, PriceKind::copy, PriceKind::scan}) {
        table_.add(newRow(kind));
    }
}

void PapersGroup::update() {
    auto row = rows().at(*updated_);
    takeCode(row);
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
