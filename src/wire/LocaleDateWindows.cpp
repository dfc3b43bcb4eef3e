#include "wire/LocaleDate.h"

#include <windows.h>

namespace wire {

namespace {

SYSTEMTIME systemTime(const DateNumbers& numbers) {
    SYSTEMTIME time{};
    time.wYear = numbers.year;
    time.wMonth = numbers.month;
    time.wDay = numbers.day;
    time.wHour = numbers.hour;
    time.wMinute = numbers.minute;
    time.wSecond = numbers.second;
    time.wMilliseconds = numbers.milliseconds;
    return time;
}

// Asks for the size and then for the text, which comes with a terminating zero.
template <typename Formatter>
std::string formatted(Formatter formatter, const DateNumbers& numbers) {
    const SYSTEMTIME time = systemTime(numbers);
    const int needed = formatter(LOCALE_USER_DEFAULT, 0, &time, nullptr, nullptr, 0);
    if (needed <= 0) {
        return {};
    }
    std::string text(static_cast<std::size_t>(needed), '\0');
    const int written = formatter(LOCALE_USER_DEFAULT, 0, &time, nullptr, text.data(), needed);
    text.resize(written > 0 ? static_cast<std::size_t>(written) - 1 : 0);
    return text;
}

} // namespace

std::string shortDate(const DateNumbers& numbers) {
    return formatted(GetDateFormatA, numbers);
}

std::string timeOfDay(const DateNumbers& numbers) {
    return formatted(GetTimeFormatA, numbers);
}

} // namespace wire
