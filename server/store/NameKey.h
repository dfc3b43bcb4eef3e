#pragma once

#include "server/store/Query.h"

#include <string_view>

namespace server {

// The form of a name by which names are compared and sorted: without regard to case, as consoles sort them, so that the
// bytes of two keys compare as the names do. Keys are stored: a change of wire::foldCase() needs a new step of the
// schema that recomputes them.
[[nodiscard]] Bytes nameKey(std::u16string_view name);

} // namespace server
