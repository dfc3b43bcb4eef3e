#pragma once

#include "wire/Text.h"

namespace client {

// A driver's version as displayed: the last date between parentheses is converted to the local form of
// wire::formatWireDate. Everything else is left unchanged.
[[nodiscard]] wire::WideString localVersionText(const wire::WideString& version);

} // namespace client
