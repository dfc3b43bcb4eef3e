#pragma once

#include "forms/Control.h"
#include "platform/Platform.h"

#include <string_view>

namespace rules {

// Asks before something is deleted; true on OK.
[[nodiscard]] bool confirmDelete(platform::Platform& platform, std::u16string_view question);

// Tells that a dialog can't end without the field, and leads there.
void refuseBlank(platform::Platform& platform, std::u16string_view text, forms::Control& field);

} // namespace rules
