#pragma once

#include "server/store/Query.h"

#include <string_view>

namespace server {

// The form of a name by which names are compared and sorted: capital and small letters are the same, as consoles sort
// them, and the bytes of two keys compare as the names do. Keys are stored: whoever changes wire::foldCase() adds a
// step to the schema that makes them anew.
[[nodiscard]] Bytes nameKey(std::u16string_view name);

} // namespace server
