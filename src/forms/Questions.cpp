#include "forms/Questions.h"

#include "forms/Form.h"

namespace forms {

bool confirmDelete(platform::Platform& platform, std::u16string_view question, std::u16string_view object) {
    return platform.ui.messageBoxAbout(platform.ui.activeWindow(), wire::WideString(object), wire::WideString(question),
                                       u"Warning", platform::boxStyle::okCancel) == platform::Answer::ok;
}

bool confirmDelete(Form& form, std::u16string_view question, std::u16string_view object) {
    return confirmDelete(form.platform(), question, object);
}

void refuseBlank(Control& field, std::u16string_view text, std::u16string_view caption, std::uint32_t style) {
    field.form().messageBox(wire::WideString(text), wire::WideString(caption), style);
    field.setFocus();
}

} // namespace forms
