#include "forms/Button.h"

#include "forms/ControlVisitor.h"

namespace forms {

Button::Button(Container& container, std::u16string_view label, bool isDefault)
    : Control(container, label), isDefault_(isDefault) {}

void Button::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

bool Button::userPressed() {
    if (!takesInput()) {
        return false;
    }
    run(onPress);
    return true;
}

} // namespace forms
