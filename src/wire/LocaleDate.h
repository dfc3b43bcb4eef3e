#pragma once

#include <chrono>
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

// Whether the numbers are a valid day, in the years that the Windows function accepts, so that both platforms leave the
// same texts unchanged.
[[nodiscard]] constexpr bool isDay(const DateNumbers& numbers) {
    using namespace std::chrono;
    constexpr unsigned firstYear = 1601;
    constexpr unsigned lastYear = 30827;
    return numbers.year >= firstYear && numbers.year <= lastYear && numbers.month <= 12 && numbers.day <= 31 &&
           year_month_day{year{numbers.year}, month{numbers.month}, day{numbers.day}}.ok();
}

// A fraction is not shown, but one that is not a number of milliseconds makes the time invalid.
[[nodiscard]] constexpr bool isTimeOfDay(const DateNumbers& numbers) {
    return numbers.hour <= 23 && numbers.minute <= 59 && numbers.second <= 59 && numbers.milliseconds <= 999;
}

// The short date and the time of day in the locale of the user; empty when the numbers are not a valid date or time.
[[nodiscard]] std::string shortDate(const DateNumbers& numbers);
[[nodiscard]] std::string timeOfDay(const DateNumbers& numbers);

} // namespace wire
