#include "rules/RuleEntryList.h"

#include "client/CQVXAdminClass.h"
#include "forms/Form.h"
#include "forms/Questions.h"

#include <algorithm>
#include <utility>

namespace rules {
namespace {

namespace ruleEntryType = protocol::ruleEntryType;

// Not spelled like the rows in which the type of a new rule is chosen; this must stay.
constexpr std::array<ruleEntryType::Labelled, 8> listedTypes{{
    {ruleEntryType::ruleGroup, u"Rule group"},
    {ruleEntryType::pageLimit, u"Page limit"},
    {ruleEntryType::pricePlan, u"Price Plan"},
    {ruleEntryType::handover, u"Handover"},
    {ruleEntryType::parsePrintJob, u"Parse printjob"},
    {ruleEntryType::snmpQueryPrinter, u"SNMP Query printer"},
    {ruleEntryType::clientBilling, u"Client billing"},
    {ruleEntryType::shortId, u"Short Id"},
}};

} // namespace

RuleEntryList::RuleEntryList(forms::Container& container, const Titles& titles, TypeWords words)
    : list(container, u"Rules"), addButton(container, u"Add..."), removeButton(container, u"Remove"), words_(words) {
    list.setColumns(
        {{wire::WideString(titles[0]), 100}, {wire::WideString(titles[1]), 150}, {wire::WideString(titles[2]), 200}});
    list.onSelect = [this] { followSelection(); };
    addButton.onPress = [this] { add(); };
    removeButton.onPress = [this] { remove(); };
    removeButton.setEnabled(false);
}

void RuleEntryList::open(std::string ownerId, std::int32_t ownerNumber) {
    ownerId_ = std::move(ownerId);
    ownerNumber_ = ownerNumber;
    read();
}

void RuleEntryList::read() {
    client::CQVXAdminClass client;
    client.listRuleEntries(ownerId_, ownerNumber_, entries_);
    show();
}

void RuleEntryList::show() {
    std::vector<forms::ListRow> rows;
    rows.reserve(entries_.size());
    for (const auto& entry : entries_) {
        rows.push_back({.cells = {typeText(entry), entry.name, entry.affectedName}, .data = entry.id});
    }
    list.setRows(std::move(rows));
    followSelection();
}

void RuleEntryList::select(std::string_view id) {
    const auto row = std::ranges::find(entries_, id, &protocol::RuleEntryRecord::id) - entries_.begin();
    list.select(static_cast<std::size_t>(row));
    followSelection();
}

const protocol::RuleEntryRecord* RuleEntryList::selected() const {
    const auto row = list.selection();
    return row && *row < entries_.size() && !entries_[*row].id.empty() ? &entries_[*row] : nullptr;
}

RuleEntryPlace RuleEntryList::place() {
    return {.entries = entries_, .ownerId = ownerId_, .ownerNumber = ownerNumber_, .parentId = {}};
}

wire::WideString RuleEntryList::typeText(const protocol::RuleEntryRecord& entry) const {
    const auto* const known = std::ranges::find(listedTypes, entry.type, &ruleEntryType::Labelled::type);
    const bool ownWord = words_ == TypeWords::ofConsole && known != listedTypes.end();
    return ownWord ? wire::WideString(known->label) : entry.typeText;
}

void RuleEntryList::followSelection() {
    removeButton.setEnabled(selected() != nullptr);
    if (onSelection) {
        onSelection();
    }
}

void RuleEntryList::add() {
    if (onAdd) {
        onAdd();
        read();
    }
}

void RuleEntryList::remove() {
    const auto* const entry = selected();
    if (entry == nullptr ||
        !forms::confirmDelete(list.form(), u"Are you sure you want to delete this rule entry?", entry->name)) {
        return;
    }
    client::CQVXAdminClass().removeRuleEntry(entry->id, entry->type);
    read();
}

} // namespace rules
