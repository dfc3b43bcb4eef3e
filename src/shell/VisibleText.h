#pragma once

#include "wire/Text.h"

namespace shell {

// The text with everything visible that would break a line, move a terminal's cursor or turn the direction of writing:
// control characters as their pictures, the others as U+FFFD.
wire::WideString visibleText(wire::WideStringView text);

} // namespace shell
