#pragma once

#include "wire/Text.h"

#include <string>

namespace wire {

// A date text of the server ("2014-03-05 17:04:09.250") as a short date and a time in the user's locale, a blank
// between them. What is no date comes back unchanged. When valid is given, it tells whether more than four numbers were
// found.
[[nodiscard]] std::string formatWireDate(const std::string& text, bool* valid = nullptr);

[[nodiscard]] WideString formatWireDateWide(const WideString& text);

} // namespace wire
