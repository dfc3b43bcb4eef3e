#pragma once

#include "wire/Text.h"

namespace client {

// A driver's version as it is shown: of the dates that stand between parentheses, the last one in the local form of
// wire::formatWireDate. All else, and a version without such a date, stays as it came.
[[nodiscard]] wire::WideString localVersionText(const wire::WideString& version);

} // namespace client
