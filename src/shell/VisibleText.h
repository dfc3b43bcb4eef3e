#pragma once

#include "wire/Text.h"

namespace shell {

// The text with everything made visible that would break a line, move a terminal's cursor or change the direction of
// writing: control characters as their pictures, the others as U+FFFD.
wire::WideString visibleText(wire::WideStringView text);

} // namespace shell
