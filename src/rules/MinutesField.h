#pragma once

#include "forms/DropList.h"
#include "forms/EditBox.h"
#include "forms/Label.h"

#include <cstdint>
#include <optional>

namespace rules {

// A length of time as a number and its unit, beside the control that says what it is of.
class MinutesField {
public:
    MinutesField(forms::Container& container, const forms::Control& owner, std::u16string_view remark);

    // Fills the list of units; before that there are none to choose.
    void open();
    // In the largest unit that needs no fraction. Nothing leaves the number empty.
    void show(std::optional<std::uint32_t> minutes);
    // Three hours, where there is no number.
    void fillIfEmpty();
    // None for no number, one that is too large, and without a unit.
    std::optional<std::uint32_t> minutes() const;
    void setEnabled(bool enabled);

    forms::EditBox number;
    forms::DropList unit;
    forms::Label remark;
};

} // namespace rules
