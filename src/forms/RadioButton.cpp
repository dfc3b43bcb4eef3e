#include "forms/RadioButton.h"

#include "forms/ControlVisitor.h"
#include "forms/RadioGroup.h"

namespace forms {

RadioButton::RadioButton(Container& container, RadioGroup& group, std::u16string_view label)
    : Control(container, label), group_(group) {
    group.buttons_.push_back(this);
}

void RadioButton::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

bool RadioButton::chosen() const {
    return group_.chosen() == this;
}

void RadioButton::choose() {
    if (!chosen()) {
        letGoOfOther();
        changed(Aspect::selection);
    }
}

bool RadioButton::userChose() {
    if (!takesInput()) {
        return false;
    }
    letGoOfOther();
    run(onChoose);
    return true;
}

void RadioButton::letGoOfOther() {
    RadioButton* const other = group_.chosen_;
    group_.chosen_ = this;
    if (other != nullptr && other != this) {
        other->changed(Aspect::selection);
    }
}

} // namespace forms
