#include "rules/Questions.h"

namespace rules {

bool confirmDelete(console::Platform& platform, std::u16string_view question) {
    return platform.ui.messageBox(platform.ui.activeWindow(), wire::WideString(question), u"Warning",
                                  console::boxStyle::okCancel) == console::Answer::ok;
}

void refuseBlank(console::Platform& platform, std::u16string_view text, console::Control& field) {
    platform.ui.messageBox(platform.ui.activeWindow(), wire::WideString(text), u"Required field is Empty!",
                           console::boxStyle::iconWarning);
    field.setFocus();
}

} // namespace rules
