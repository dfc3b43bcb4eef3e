#pragma once

#include "wire/Text.h"

namespace shell {

// Whether a text contains another one, ignoring case; that one is in folded case (wire::foldCase). All texts contain
// the empty one.
[[nodiscard]] bool containsFolded(wire::WideStringView text, wire::WideStringView folded);

} // namespace shell
