#include "hosts/ctl/DateTimeText.h"

#include <algorithm>
#include <charconv>
#include <string_view>

namespace ctl {
namespace {

// Removes from the front of the text what matches the pattern, in which 0 stands for any digit; empty when it does not
// match.
std::optional<std::string_view> takeLike(std::string_view& text, std::string_view pattern) {
    const auto taken = text.substr(0, pattern.size());
    const bool like = std::ranges::equal(taken, pattern, [](char character, char expected) {
        return expected == '0' ? character >= '0' && character <= '9' : character == expected;
    });
    if (!like) {
        return std::nullopt;
    }
    text.remove_prefix(pattern.size());
    return taken;
}

template <class Field>
void readNumber(std::string_view digits, Field& field) {
    std::from_chars(digits.data(), digits.data() + digits.size(), field);
}

} // namespace

std::optional<std::optional<forms::DateTime>> parseDateTime(const std::string& text) {
    if (text == "none") {
        return std::optional<forms::DateTime>();
    }
    forms::DateTime value;
    std::string_view rest = text;
    const auto date = takeLike(rest, "0000-00-00");
    if (date) {
        readNumber(date->substr(0, 4), value.year);
        readNumber(date->substr(5, 2), value.month);
        readNumber(date->substr(8, 2), value.day);
    }
    if (rest.starts_with(' ') || rest.starts_with('T')) {
        rest.remove_prefix(1);
    }
    const auto time = takeLike(rest, "00:00");
    if (time) {
        readNumber(time->substr(0, 2), value.hour);
        readNumber(time->substr(3, 2), value.minute);
        if (const auto seconds = takeLike(rest, ":00")) {
            readNumber(seconds->substr(1), value.second);
        }
    }
    if (!rest.empty() || (!date && !time) || !platform::isValid(value)) {
        return std::nullopt;
    }
    return std::optional<forms::DateTime>(value);
}

std::string formatDateTime(const forms::DateTimeOptions& options, const std::optional<forms::DateTime>& value) {
    if (!value) {
        return "none";
    }
    const auto digits = [](int number, std::size_t count) {
        const auto text = std::to_string(number);
        return std::string(count - std::min(count, text.size()), '0') + text;
    };
    const auto date = digits(value->year, 4) + '-' + digits(value->month, 2) + '-' + digits(value->day, 2);
    const auto time = digits(value->hour, 2) + ':' + digits(value->minute, 2) + ':' + digits(value->second, 2);
    return !options.time ? date : options.date ? date + ' ' + time : time;
}

} // namespace ctl
