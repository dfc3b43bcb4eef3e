#include "rules/Questions.h"

namespace rules {

bool confirmDelete(platform::Platform& platform, std::u16string_view question) {
    return platform.ui.messageBox(platform.ui.activeWindow(), wire::WideString(question), u"Warning",
                                  platform::boxStyle::okCancel) == platform::Answer::ok;
}

void refuseBlank(platform::Platform& platform, std::u16string_view text, forms::Control& field) {
    platform.ui.messageBox(platform.ui.activeWindow(), wire::WideString(text), u"Required field is Empty!",
                           platform::boxStyle::iconWarning);
    field.setFocus();
}

} // namespace rules
