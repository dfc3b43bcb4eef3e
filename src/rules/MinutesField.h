#pragma once

#include "forms/ChoiceList.h"
#include "forms/EditBox.h"
#include "forms/Label.h"

#include <cstdint>
#include <optional>

namespace rules {

// A length of time as a number and its unit, beside the control that names it.
class MinutesField {
public:
    MinutesField(forms::Container& container, const forms::Control& owner, std::u16string_view remark);

    // Shows the minutes in the largest unit that needs no fraction; none leaves the number empty.
    void show(std::optional<std::uint32_t> minutes);
    // Sets three hours if there is no number.
    void fillIfEmpty();
    // None without a number, for a number that is too large, and without a unit.
    [[nodiscard]] std::optional<std::uint32_t> minutes() const;
    void setEnabled(bool enabled);

    forms::EditBox number;
    forms::ChoiceList<std::uint32_t> unit; // in minutes
    forms::Label remark;
};

} // namespace rules
