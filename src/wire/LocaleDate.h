#pragma once

#include <cstdint>
#include <string>

namespace wire {

// The numbers of a date and time as they were found, not validated.
struct DateNumbers {
    std::uint16_t year = 0;
    std::uint16_t month = 0;
    std::uint16_t day = 0;
    std::uint16_t hour = 0;
    std::uint16_t minute = 0;
    std::uint16_t second = 0;
    std::uint16_t milliseconds = 0;
};

// The short date and the time of day in the locale of the user; empty when the numbers are not a valid date or time.
[[nodiscard]] std::string shortDate(const DateNumbers& numbers);
[[nodiscard]] std::string timeOfDay(const DateNumbers& numbers);

} // namespace wire
