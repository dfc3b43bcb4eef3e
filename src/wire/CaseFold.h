#pragma once

#include <string_view>

namespace wire {

// One UTF-16 unit without its case, for the Latin, Greek and Cyrillic letters that have a single counterpart.
char16_t foldCase(char16_t unit);

// How texts stand in a sorted list: by their units, without regard to case. Below 0, 0, or above 0.
int compareIgnoringCase(std::u16string_view left, std::u16string_view right);

} // namespace wire
