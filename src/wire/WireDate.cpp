#include "wire/WireDate.h"

#include "wire/LocaleDate.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cstdint>
#include <limits>
#include <string_view>

namespace wire {

namespace {

constexpr bool isBlank(char character) {
    return character == ' ' || (character >= '\t' && character <= '\r');
}

void skipBlanks(std::string_view& text) {
    while (!text.empty() && isBlank(text.front())) {
        text.remove_prefix(1);
    }
}

// A decimal number with an optional sign, of which the low 16 bits are kept. Leading blanks are skipped.
bool takeNumber(std::string_view& text, std::uint16_t& number) {
    skipBlanks(text);
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (text.empty() || text.front() < '0' || text.front() > '9') {
        return false;
    }
    std::int64_t value = 0;
    for (; !text.empty() && text.front() >= '0' && text.front() <= '9'; text.remove_prefix(1)) {
        value = std::min<std::int64_t>(value * 10 + (text.front() - '0'), std::numeric_limits<std::int32_t>::max());
    }
    number = static_cast<std::uint16_t>(negative ? -value : value);
    return true;
}

// Reads numbers, separated by the characters of the pattern, until the text departs from it, and returns how many it
// filled. A blank in the pattern stands for any number of blanks.
int scanNumbers(std::string_view text, std::string_view separators, std::array<std::uint16_t, 7>& numbers) {
    int filled = 0;
    for (std::size_t index = 0; index <= separators.size(); ++index) {
        if (!takeNumber(text, numbers[index])) {
            return filled;
        }
        ++filled;
        if (index == separators.size()) {
            break;
        }
        if (separators[index] == ' ') {
            skipBlanks(text);
        } else if (text.starts_with(separators[index])) {
            text.remove_prefix(1);
        } else {
            break;
        }
    }
    return filled;
}

// The numbers of a date text, and how many of them the first scan filled.
struct Scanned {
    DateNumbers numbers;
    int filled = 0;
};

Scanned scan(std::string_view text) {
    constexpr std::uint16_t missing = 0xFFFF; // invalid in any date or time: the text stays as it is
    std::array<std::uint16_t, 7> numbers{};
    numbers.fill(missing);
    const int filled = scanNumbers(text, "-- ::.", numbers);
    if (filled < 7) {
        scanNumbers(text, "-- ::", numbers);
        numbers[6] = 0;
    }
    return {.numbers{.year = numbers[0],
                     .month = numbers[1],
                     .day = numbers[2],
                     .hour = numbers[3],
                     .minute = numbers[4],
                     .second = numbers[5],
                     .milliseconds = numbers[6]},
            .filled = filled};
}

} // namespace

std::string formatWireDate(const std::string& text, bool* valid) {
    const auto [numbers, filled] = scan(text);
    if (valid != nullptr) {
        *valid = filled > 4;
    }
    const std::string date = shortDate(numbers);
    const std::string time = timeOfDay(numbers);
    return date.empty() || time.empty() ? text : date + " " + time;
}

WideString formatWireDateWide(const WideString& text) {
    return fromCodePage(formatWireDate(toCodePage(text)));
}

std::int64_t wireDateOrder(const std::string& text) {
    using namespace std::chrono;
    const auto [found, filled] = scan(text);
    if (!isDay(found) || !isTimeOfDay(found)) {
        return std::numeric_limits<std::int64_t>::min();
    }
    const sys_days date = year_month_day{year{found.year}, month{found.month}, day{found.day}};
    const auto time = date.time_since_epoch() + hours{found.hour} + minutes{found.minute} + seconds{found.second};
    return (time + milliseconds{found.milliseconds}).count();
}

std::int64_t wireDateOrder(const WideString& text) {
    return wireDateOrder(toCodePage(text));
}

} // namespace wire
