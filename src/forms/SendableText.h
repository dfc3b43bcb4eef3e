#pragma once

#include "forms/TextControl.h"

#include <cstdint>

namespace forms {

class Form;

// The most UTF-16 units that a text of a message can have: its length is counted in bytes, with 16 bits.
constexpr std::size_t longestText = std::numeric_limits<std::uint16_t>::max() / sizeof(char16_t);

// False when a message can't carry the text, or not in so many bytes of the user's code page. Then a box says so, and
// the focus moves to the field.
[[nodiscard]] bool canSend(Control& field, wire::WideStringView text,
                           std::size_t codePageBytes = TextOptions::unlimited);

// The same for the texts of all boxes of a form, including hidden and disabled ones.
[[nodiscard]] bool canSendTexts(Form& form);

} // namespace forms
