#include "forms/DateTimePicker.h"

#include "forms/ControlVisitor.h"

#include <chrono>

namespace forms {

bool isValid(const DateTime& value) {
    const std::chrono::year_month_day day{std::chrono::year{value.year},
                                          std::chrono::month{static_cast<unsigned>(value.month)},
                                          std::chrono::day{static_cast<unsigned>(value.day)}};
    const auto within = [](int number, int end) { return number >= 0 && number < end; };
    return value.year >= 1 && value.year <= 9999 && value.month >= 1 && value.day >= 1 && day.ok() &&
           within(value.hour, 24) && within(value.minute, 60) && within(value.second, 60);
}

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
