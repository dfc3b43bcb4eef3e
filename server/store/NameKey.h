#pragma once

#include "server/store/Query.h"

#include <string_view>

namespace server {

// The form of a name by which names are compared and sorted: capital and small letters of the Latin, Greek and Cyrillic
// alphabets are the same, and the bytes of two keys compare as the names do.
[[nodiscard]] Bytes nameKey(std::u16string_view name);

} // namespace server
