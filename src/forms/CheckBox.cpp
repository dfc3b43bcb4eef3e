#include "forms/CheckBox.h"

#include "forms/ControlVisitor.h"

namespace forms {

CheckBox::CheckBox(Container& container, std::u16string_view label) : Control(container, label) {}

void CheckBox::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

void CheckBox::setChecked(bool checked) {
    if (checked_ != checked) {
        checked_ = checked;
        changed(Aspect::selection);
    }
}

bool CheckBox::userChecked(bool checked) {
    if (!takesInput()) {
        return false;
    }
    checked_ = checked;
    run(onChange);
    return true;
}

} // namespace forms
