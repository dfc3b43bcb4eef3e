#include "rules/RuleEntryFields.h"

#include "forms/Form.h"
#include "forms/Questions.h"
#include "protocol/rules/RuleEntry.h"

namespace rules {
namespace {

namespace ruleEntryType = protocol::ruleEntryType;

} // namespace

RuleEntryFields::RuleEntryFields(forms::Container& container, protocol::RuleEntryRecord& entry, Ways ways)
    : type(container, u"Type"),
      name(container, u"Name", {.limit = 64}),
      comment(container, u"Comment", {.limit = 255}),
      affected(container, AffectedList::EmptyRow::first),
      object(container, entry),
      entry_(entry),
      ways_(ways) {
    for (const auto& [value, label] : ruleEntryType::labels) {
        if (value != ruleEntryType::ruleGroup || ways.types == Types::all) {
            type.add(value, label);
        }
    }
    type.select(0);
    type.onSelect = [this] { typeChanged(); };
    affected.onKnown = [this] { allowOk(); };
}

void RuleEntryFields::open() {
    type.selectValue(entry_.type);
    name.setText(entry_.name);
    comment.setText(entry_.comment);
    affected.fill();
    affected.select(entry_.affectedId);
    typeChanged();
    object.select(entry_.targetId);
}

std::uint8_t RuleEntryFields::chosenType() const {
    return type.value().value_or(ways_.typeWithoutRow.value_or(entry_.type));
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

bool RuleEntryFields::take() {
    if (name.text().empty()) {
        forms::refuseBlank(name, ways_.blankName);
        return false;
    }
    entry_.name = name.text();
    // From here on the lists go back to the row with the entry's name, which must stay.
    affected.saveName(entry_.name);
    object.saveName(entry_.name);
    entry_.comment = comment.text();
    entry_.type = chosenType();
    if (entry_.type != ruleEntryType::ruleGroup) {
        affected.take(entry_);
    }
    return object.take(entry_);
}

} // namespace rules
