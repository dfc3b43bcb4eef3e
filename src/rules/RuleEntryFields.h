#pragma once

#include "forms/EditBox.h"
#include "rules/AffectedList.h"
#include "rules/RuleObjectList.h"

#include <cstdint>
#include <string_view>

namespace rules {

// What the dialogs that make a rule entry show of it: its type, name and comment, whom it affects and what it points
// at.
class RuleEntryFields {
public:
    // Where an entry is placed: groups do not nest, so within one there is no type "Rule group".
    enum class Types : std::uint8_t { all, withinGroup };

    RuleEntryFields(forms::Container& container, protocol::RuleEntryRecord entryToShow, Types types);

    // Fills the lists and shows the entry; one without a type gets the first.
    void open();
    // Takes over what the person has chosen. False, with a message, as soon as something is missing; what comes before
    // it stands in the entry then.
    [[nodiscard]] bool take(std::u16string_view blankNameText);

    protocol::RuleEntryRecord entry;
    forms::DropList type;
    forms::EditBox name;
    forms::EditBox comment;
    AffectedList affected;
    RuleObjectList object;

private:
    std::uint8_t chosenType() const;
    void typeChanged();
    void allowOk();

    Types types_;
};

} // namespace rules
