#pragma once

#include "wire/Text.h"

namespace shell {

// The order in which people expect names: without regard to case and accents, and numbers by their value, so that
// "Floor 9" comes before "Floor 10".

// A text whose plain comparison with others of its kind gives the natural order of the originals.
wire::WideString naturalKey(wire::WideStringView text);

// The same, appended to an existing text.
void appendNaturalKey(wire::WideString& keys, wire::WideStringView text);

} // namespace shell
