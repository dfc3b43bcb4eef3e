#pragma once

#include "wire/Text.h"

#include <compare>
#include <cstdint>

namespace platform {

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
[[nodiscard]] bool isValid(const DateTime& value);

// As the server writes dates, whatever the user's locale: "2014-03-05 17:04:09".
[[nodiscard]] wire::WideString toWireDate(const DateTime& value);

} // namespace platform
