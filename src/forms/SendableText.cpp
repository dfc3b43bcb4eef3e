#include "forms/SendableText.h"

#include "forms/Form.h"
#include "forms/FormWalk.h"

#include <string>
#include <string_view>

namespace forms {
namespace {

void refuse(Control& field, std::size_t most, std::u16string_view unit) {
    const wire::WideString number = wire::toWide(std::to_string(most));
    field.form().messageBox(ownName(field) + u" should not be longer than " + number + wire::WideString(unit),
                            u"Warning", platform::boxStyle::iconWarning);
    reveal(field);
    field.setFocus();
}

} // namespace

bool canSend(Control& field, wire::WideStringView text, std::size_t codePageBytes) {
    if (text.size() > longestText) {
        refuse(field, longestText, u" characters");
        return false;
    }
    if (codePageBytes != TextOptions::unlimited && wire::toCodePage(text).size() > codePageBytes) {
        refuse(field, codePageBytes, u" bytes");
        return false;
    }
    return true;
}

bool canSendTexts(Form& form) {
    for (Control* control : controlsOf(form)) {
        auto* const box = dynamic_cast<TextControl*>(control);
        if (box != nullptr && !canSend(*box, box->text(), box->options().codePageBytes)) {
            return false;
        }
    }
    return true;
}

} // namespace forms
