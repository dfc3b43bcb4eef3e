#pragma once

#include "forms/Control.h"
#include "platform/DateTime.h"

#include <optional>

namespace forms {

using platform::DateTime;

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

    [[nodiscard]] const DateTimeOptions& options() const { return options_; }
    [[nodiscard]] const std::optional<DateTime>& value() const { return value_; }
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
