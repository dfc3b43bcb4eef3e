#include "platform/DateTime.h"

#include <array>
#include <chrono>
#include <cstdio>

namespace platform {

bool isValid(const DateTime& value) {
    const std::chrono::year_month_day day{std::chrono::year{value.year},
                                          std::chrono::month{static_cast<unsigned>(value.month)},
                                          std::chrono::day{static_cast<unsigned>(value.day)}};
    const auto within = [](int number, int end) { return number >= 0 && number < end; };
    return value.year >= 1 && value.year <= 9999 && value.month >= 1 && value.day >= 1 && day.ok() &&
           within(value.hour, 24) && within(value.minute, 60) && within(value.second, 60);
}

wire::WideString toWireDate(const DateTime& value) {
    std::array<char, 48> text{};
    std::snprintf(text.data(), text.size(), "%04d-%02d-%02d %02d:%02d:%02d", value.year, value.month, value.day,
                  value.hour, value.minute, value.second);
    return wire::toWide(text.data());
}

} // namespace platform
