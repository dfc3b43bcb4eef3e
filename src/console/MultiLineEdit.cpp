#include "console/MultiLineEdit.h"

#include "console/ControlVisitor.h"

namespace console {

MultiLineEdit::MultiLineEdit(Container& container, std::u16string_view label, TextOptions options)
    : TextControl(container, label, options) {}

void MultiLineEdit::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

} // namespace console
