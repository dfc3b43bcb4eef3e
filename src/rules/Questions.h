#pragma once

#include "console/Control.h"
#include "console/Platform.h"

#include <string_view>

namespace rules {

// Asks before something is deleted; true on OK.
[[nodiscard]] bool confirmDelete(console::Platform& platform, std::u16string_view question);

// Tells that a dialog can't end without the field, and leads there.
void refuseBlank(console::Platform& platform, std::u16string_view text, console::Control& field);

} // namespace rules
