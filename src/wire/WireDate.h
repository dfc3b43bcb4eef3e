#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <string>

namespace wire {

// A date text of the server ("2014-03-05 17:04:09.250") as a short date and a time in the user's locale, separated by a
// blank. A text that is not a date is returned unchanged. If given, valid is set to whether more than four numbers were
// found.
[[nodiscard]] std::string formatWireDate(const std::string& text, bool* valid = nullptr);

[[nodiscard]] WideString formatWireDateWide(const WideString& text);

// A number that sorts such texts by time, whatever the locale. A text that formatWireDate returns unchanged is not a
// date and sorts before all dates.
[[nodiscard]] std::int64_t wireDateOrder(const std::string& text);
[[nodiscard]] std::int64_t wireDateOrder(const WideString& text);

} // namespace wire
