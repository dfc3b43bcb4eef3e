#pragma once

#include "forms/Button.h"
#include "forms/DropList.h"
#include "platform/Platform.h"
#include "rules/PageLimitObjects.h"
#include "rules/PricePlanObjects.h"
#include "rules/RuleGroupObjects.h"
#include "rules/ShortIdObjects.h"

#include <array>
#include <cstdint>
#include <optional>

namespace rules {

// The list of what a rule entry points at, by its type, and the buttons that edit and delete that. "<New>" in the list
// makes one.
class RuleObjectList {
public:
    // The entry is the one that the dialog is about; it outlives the list.
    RuleObjectList(forms::Container& container, platform::Platform& platform, const protocol::RuleEntryRecord& entry);

    // Lists what entries of the type point at, as the server has it now, or hides all for a type that points at
    // nothing.
    void showType(std::uint8_t type);
    // Selects the object with the id; without one nothing changes.
    void select(std::string_view id);
    // Makes the entry point at the selected object, or at nothing when its type needs none. False, with a message, when
    // none is selected.
    [[nodiscard]] bool take(protocol::RuleEntryRecord& entry);
    // What a later filling goes back to where no row is saved.
    void saveName(const wire::WideString& name);

    forms::DropList list;
    forms::Button editButton;
    forms::Button deleteButton;

private:
    RuleObjects* objectsOf(std::uint8_t type);
    void fill();
    std::optional<std::size_t> rowToGoBackTo() const;
    // None for "<New>"; an object of that name can't be told from it.
    std::optional<std::size_t> selectedObject() const;
    // Null where there is nothing to edit or delete: an object without a name counts as none too.
    EditableRuleObjects* editableSelection();
    void rowSelected();
    void edit();
    void remove();
    void enableButtons();

    platform::Platform& platform_;
    const protocol::RuleEntryRecord& entry_;
    RuleGroupObjects groups_;
    PageLimitObjects limits_;
    PricePlanObjects plans_;
    ShortIdObjects shortIds_;
    RuleObjects* objects_ = nullptr; // those that are listed; null for a type that points at nothing
};

} // namespace rules
