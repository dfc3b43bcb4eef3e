#include "forms/EditBox.h"

#include "forms/ControlVisitor.h"

namespace forms {

EditBox::EditBox(Container& container, std::u16string_view label, TextOptions options)
    : TextControl(container, label, options) {}

void EditBox::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

} // namespace forms
