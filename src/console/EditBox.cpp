#include "console/EditBox.h"

#include "console/ControlVisitor.h"

namespace console {

EditBox::EditBox(Container& container, std::u16string_view label, TextOptions options)
    : TextControl(container, label, options) {}

void EditBox::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

} // namespace console
