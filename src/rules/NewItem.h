#pragma once

#include <string_view>

namespace rules {

// The row of a list that opens the editor for what the list is to hold next.
constexpr std::u16string_view newItem = u"<New>";

} // namespace rules
