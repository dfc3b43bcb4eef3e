#include "forms/MultiLineEdit.h"

#include "forms/ControlVisitor.h"

namespace forms {

MultiLineEdit::MultiLineEdit(Container& container, std::u16string_view label, TextOptions options)
    : TextControl(container, label, options) {}

void MultiLineEdit::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

} // namespace forms
