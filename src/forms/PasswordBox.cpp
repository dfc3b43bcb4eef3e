#include "forms/PasswordBox.h"

#include "forms/ControlVisitor.h"

namespace forms {

PasswordBox::PasswordBox(Container& container, std::u16string_view label, TextOptions options)
    : TextControl(container, label, options) {}

void PasswordBox::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

} // namespace forms
