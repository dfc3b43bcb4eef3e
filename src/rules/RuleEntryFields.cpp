#include "rules/RuleEntryFields.h"

#include "forms/Form.h"
#include "forms/Questions.h"
#include "protocol/rules/RuleEntry.h"

#include <algorithm>
#include <utility>

namespace rules {
namespace {

namespace ruleEntryType = protocol::ruleEntryType;

} // namespace

RuleEntryFields::RuleEntryFields(forms::Container& container, protocol::RuleEntryRecord entryToShow, Types types)
    : entry(std::move(entryToShow)),
      type(container, u"Type"),
      name(container, u"Name", {.limit = 64}),
      comment(container, u"Comment", {.limit = 255}),
      affected(container, AffectedList::EmptyRow::first),
      object(container, entry),
      types_(types) {
    type.onSelect = [this] { typeChanged(); };
    affected.onKnown = [this] { allowOk(); };
}

void RuleEntryFields::open() {
    for (const auto& [value, label] : ruleEntryType::labels) {
        if (value != ruleEntryType::ruleGroup || types_ == Types::all) {
            type.addItem(wire::WideString(label));
            if (value == entry.type) {
                type.select(type.items().size() - 1);
            }
        }
    }
    if (!type.selection()) {
        type.select(0);
    }
    name.setText(entry.name);
    comment.setText(entry.comment);
    affected.fill();
    affected.select(entry.affectedId);
    typeChanged();
    object.select(entry.targetId);
}

// A label that is none of the others means "Client billing"; this must stay.
std::uint8_t RuleEntryFields::chosenType() const {
    const auto label = type.selectedText();
    const auto match = std::ranges::find(ruleEntryType::labels, label, &ruleEntryType::Labelled::label);
    return match != ruleEntryType::labels.end() ? match->type : ruleEntryType::clientBilling;
}

void RuleEntryFields::typeChanged() {
    affected.setVisible(chosenType() != ruleEntryType::ruleGroup);
    allowOk();
    object.showType(chosenType());
}

// Without the list of users and groups, the entry would lose the one that it has.
void RuleEntryFields::allowOk() {
    type.form().okButton().setEnabled(affected.known() || chosenType() == ruleEntryType::ruleGroup);
}

bool RuleEntryFields::take(std::u16string_view blankNameText) {
    if (name.text().empty()) {
        forms::refuseBlank(name, blankNameText);
        return false;
    }
    entry.name = name.text();
    // From here on the lists go back to the row with the entry's name, which must stay.
    affected.saveName(entry.name);
    object.saveName(entry.name);
    entry.comment = comment.text();
    entry.type = chosenType();
    if (entry.type != ruleEntryType::ruleGroup) {
        affected.take(entry);
    }
    return object.take(entry);
}

} // namespace rules
