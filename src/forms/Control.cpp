#include "forms/Control.h"

#include "forms/Form.h"

#include <utility>

namespace forms {

Control::Control(Container& container, std::u16string_view label) : container_(container), label_(label) {
    container.controls_.push_back(this);
}

void Control::setLabel(wire::WideString label) {
    if (label_ != label) {
        label_ = std::move(label);
        changed(Aspect::label);
    }
}

void Control::setEnabled(bool enabled) {
    if (enabled_ != enabled && !(enabled && disabledForGood_)) {
        enabled_ = enabled;
        changed(Aspect::enabled);
    }
}

void Control::disableForGood() {
    disabledForGood_ = true;
    setEnabled(false);
}

void Control::setVisible(bool visible) {
    if (visible_ != visible) {
        visible_ = visible;
        changed(Aspect::visible);
    }
}

void Control::setFocus() {
    form().focus_ = this;
    changed(Aspect::focus);
}

bool Control::reachable() const {
    return enabled_ && visible_ && container_.usable();
}

Form& Control::form() const {
    return container_.form();
}

void Control::userLeft() {
    if (takesInput()) {
        run(onLeave);
    }
}

void Control::changed(Aspect aspect) {
    form().controlChanged(*this, aspect);
}

void Control::run(const std::function<void()>& handler) const {
    if (handler) {
        const auto copy = handler; // the handler may replace itself
        form().guarded(copy);
    }
}

bool Control::takesInput() const {
    return reachable() && !form().ended();
}

} // namespace forms
