#include "console/PasswordBox.h"

#include "console/ControlVisitor.h"

namespace console {

PasswordBox::PasswordBox(Container& container, std::u16string_view label, TextOptions options)
    : TextControl(container, label, options) {}

void PasswordBox::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

} // namespace console
