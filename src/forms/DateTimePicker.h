#pragma once

#include "forms/Control.h"

#include <cstdint>
#include <optional>

namespace forms {

// A day and a time of day in the user's calendar and zone, to the second.
struct DateTime {
    std::int16_t year = 1970;
    std::int8_t month = 1; // 1 to 12
    std::int8_t day = 1;   // 1 to 31
    std::int8_t hour = 0;
    std::int8_t minute = 0;
    std::int8_t second = 0;

    friend constexpr auto operator<=>(const DateTime&, const DateTime&) = default;
};

// Whether the numbers name a real day and time, in the years 1 to 9999.
bool isValid(const DateTime& value);

struct DateTimeOptions {
    bool date = true;
    bool time = true;
    bool optional = false;        // can be switched off, which leaves no value
    std::u16string_view format{}; // how it is shown, as "yyyy-MM-dd"; empty for the way that the user is used to
};

// A box in which a day, a time or both are picked.
class DateTimePicker final : public Control {
public:
    DateTimePicker(Container& container, std::u16string_view label, DateTimeOptions options = {});
    void accept(ControlVisitor& visitor) override;

    const DateTimeOptions& options() const { return options_; }
    const std::optional<DateTime>& value() const { return value_; }
    // A value that is not a real day and time counts as none.
    void setValue(std::optional<DateTime> value);

    std::function<void()> onChange;
    // False when the value is not a real one, or none where one is needed.
    bool userPicked(std::optional<DateTime> value);

private:
    DateTimeOptions options_;
    std::optional<DateTime> value_;
};

} // namespace forms
