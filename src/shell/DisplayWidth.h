#pragma once

#include "wire/Text.h"

#include <cstddef>

namespace shell {

// How many cells of a terminal a text takes: two for the wide letters of East Asia and for pictures, none for marks
// that stand above or below another letter.
std::size_t displayWidth(wire::WideStringView text);

// The text if it is not wider than that, otherwise its beginning with an ellipsis.
wire::WideString elided(wire::WideStringView text, std::size_t width);

} // namespace shell
