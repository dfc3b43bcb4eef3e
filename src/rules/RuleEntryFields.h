#pragma once

#include "forms/ChoiceList.h"
#include "forms/EditBox.h"
#include "rules/AffectedList.h"
#include "rules/RuleObjectList.h"

#include <cstdint>
#include <optional>
#include <string_view>

namespace rules {

// The controls shared by the dialogs that create a rule entry: its type, name and comment, whom it affects and what it
// refers to.
class RuleEntryFields {
public:
    // Where an entry is placed: groups do not nest, so within one there is no type "Rule group".
    enum class Types : std::uint8_t { all, withinGroup };

    // In what the dialogs differ.
    struct Ways {
        Types types = Types::all;
        std::u16string_view blankName;              // the message when the name is missing
        std::optional<std::uint8_t> typeWithoutRow; // while no row is chosen; none for the type that the entry has
    };

    // The entry outlives the fields.
    RuleEntryFields(forms::Container& container, protocol::RuleEntryRecord& entry, Ways ways);

    // Fills the lists and shows the entry; one without a type gets the first.
    void open();
    // Takes over what the user has chosen. False, with a message, as soon as something is missing; the entry then
    // contains everything before it.
    [[nodiscard]] bool take();

    forms::ChoiceList<std::uint8_t> type;
    forms::EditBox name;
    forms::EditBox comment;
    AffectedList affected;
    RuleObjectList object;

private:
    [[nodiscard]] std::uint8_t chosenType() const;
    void typeChanged();
    void allowOk();

    protocol::RuleEntryRecord& entry_;
    Ways ways_;
};

} // namespace rules
