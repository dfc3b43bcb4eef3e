#include "forms/DateTimePicker.h"

#include "forms/ControlVisitor.h"

namespace forms {

DateTimePicker::DateTimePicker(Container& container, std::u16string_view label, DateTimeOptions options)
    : Control(container, label), options_(options) {}

void DateTimePicker::accept(ControlVisitor& visitor) {
    visitor.visit(*this);
}

void DateTimePicker::setValue(std::optional<DateTime> value) {
    if (value && !isValid(*value)) {
        value.reset();
    }
    if (value_ != value) {
        value_ = value;
        changed(Aspect::text);
    }
}

bool DateTimePicker::userPicked(std::optional<DateTime> value) {
    if (!takesInput() || (value ? !isValid(*value) : !options_.optional)) {
        return false;
    }
    value_ = value;
    run(onChange);
    return true;
}

} // namespace forms
