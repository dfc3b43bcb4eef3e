#pragma once

#include "platform/Platform.h"

#include <cstdint>
#include <string_view>

namespace forms {

class Control;
class Form;

// Asks before something is deleted, and names it if the question does not; true on OK.
[[nodiscard]] bool confirmDelete(platform::Platform& platform, std::u16string_view question,
                                 std::u16string_view object = {});
[[nodiscard]] bool confirmDelete(Form& form, std::u16string_view question, std::u16string_view object = {});

// Says that the form can't end without the field, and moves the focus there.
void refuseBlank(Control& field, std::u16string_view text, std::u16string_view caption = u"Required field is Empty!",
                 std::uint32_t style = platform::boxStyle::iconWarning);

} // namespace forms
