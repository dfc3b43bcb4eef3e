#include "forms/Label.h"

#include "forms/ControlVisitor.h"

#include <utility>

namespace forms {

Label::Label(Container& container, std::u16string_view label, std::u16string_view text)
    : Control(container, label), text_(text) {}

void Label::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

void Label::setText(wire::WideString text) {
    if (text_ != text) {
        text_ = std::move(text);
        changed(Aspect::text);
    }
}

} // namespace forms
