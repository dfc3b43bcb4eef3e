#include "rules/PriceText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <string>
#include <string_view>

namespace rules {
namespace {

// As "%.Nf" prints it, without a locale.
std::string printed(double value, int decimals) {
    // Room for the largest number and the most decimals that a locale can ask for.
    std::array<char, std::numeric_limits<double>::max_exponent10 + std::numeric_limits<char>::max() + 8> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), value, std::chars_format::fixed, decimals);
    return {text.data(), end.ptr};
}

// Puts the thousands separators between the digits of a whole number.
wire::WideString grouped(std::string_view digits, const platform::NumberFormat& format) {
    wire::WideString text;
    std::size_t group = 0;
    while (!digits.empty()) {
        const std::size_t size = format.grouping.empty() ? 0 : format.grouping[group];
        const std::size_t taken = size == 0 ? digits.size() : std::min(size, digits.size());
        const std::string_view last = digits.substr(digits.size() - taken);
        text.insert(0, wire::WideString(last.begin(), last.end()));
        digits.remove_suffix(taken);
        if (!digits.empty()) {
            text.insert(0, format.thousandsSeparator);
        }
        group = std::min(group + 1, format.grouping.empty() ? 0 : format.grouping.size() - 1);
    }
    return text;
}

wire::WideString inWayOf(const platform::NumberFormat& format, const std::string& number) {
    const std::size_t sign = number.starts_with('-') ? 1 : 0;
    const std::size_t whole = std::min(number.find_first_not_of("0123456789", sign), number.size());
    if (whole == sign) {
        return {number.begin(), number.end()}; // infinite, or not a number
    }
    wire::WideString text(sign, u'-');
    text += grouped(std::string_view(number).substr(sign, whole - sign), format);
    if (whole < number.size()) {
        text += format.decimalSeparator;
        text.append(number.begin() + static_cast<std::ptrdiff_t>(whole) + 1, number.end());
    }
    return text;
}

bool isHexDigit(char character) {
    return std::string_view("0123456789abcdefABCDEF").find(character) != std::string_view::npos;
}

struct NumberAtStart {
    double value = 0;
    std::string_view rest; // behind the number; the whole text if there is none
};

// The number at the beginning of a text, as strtod reads it in the plain locale. Words such as "infinity" are not
// numbers.
NumberAtStart readNumber(std::string_view text) {
    const std::string_view whole = text;
    text.remove_prefix(std::min(text.find_first_not_of(" \t\n\v\f\r"), text.size()));
    const bool negative = text.starts_with('-');
    if (negative || text.starts_with('+')) {
        text.remove_prefix(1);
    }
    if (text.empty() || (text[0] != '.' && (text[0] < '0' || text[0] > '9'))) {
        return {0, whole};
    }
    const bool hex = text.size() > 2 && text[0] == '0' && (text[1] == 'x' || text[1] == 'X') && isHexDigit(text[2]);
    if (hex) {
        text.remove_prefix(2);
    }
    double value = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), value,
                                      hex ? std::chars_format::hex : std::chars_format::general);
    text.remove_prefix(static_cast<std::size_t>(read.ptr - text.data()));
    return {negative ? -value : value, read.ec == std::errc() ? text : whole};
}

double numberAtStart(std::string_view text) {
    return readNumber(text).value;
}

// A text with a point before its decimals, fit to be read as a number.
std::string withPoint(const platform::Locale& locale, wire::WideStringView text) {
    const auto& separator = locale.numberFormat().decimalSeparator;
    wire::WideString number(text);
    if (const auto place = number.find(separator); place != wire::WideString::npos) {
        number.replace(place, separator.size(), u".");
    }
    std::string plain(number.size(), '?'); // "?" ends a number
    std::ranges::transform(number, plain.begin(), [](char16_t unit) { return unit < 0x80 ? char(unit) : '?'; });
    return plain;
}

bool isNumber(const platform::Locale& locale, wire::WideStringView text) {
    const std::string plain = withPoint(locale, text);
    const auto number = readNumber(plain);
    const bool fits = std::isfinite(static_cast<float>(number.value));
    return fits && number.rest.size() < plain.size() && number.rest.find_first_not_of(' ') == std::string_view::npos;
}

wire::WideString readAs(const wire::WideString& number) {
    return u"Not a number; it is read as " + number;
}

} // namespace

wire::WideString formatPrice(const platform::Locale& locale, double value, int digits) {
    const auto& format = locale.numberFormat();
    return inWayOf(format, printed(value, std::max(digits, format.decimals)));
}

wire::WideString formatAmount(const platform::Locale& locale, double value) {
    return inWayOf(locale.numberFormat(), printed(value, 2));
}

float parsePrice(const platform::Locale& locale, wire::WideStringView text) {
    const auto price = static_cast<float>(numberAtStart(withPoint(locale, text)));
    return std::isfinite(price) ? price : 0.0F;
}

std::int64_t parseHundredths(const platform::Locale& locale, wire::WideStringView text) {
    constexpr double tooLarge = 9.2e18;
    std::string number = withPoint(locale, text);
    const auto point = std::min(number.find('.'), number.size());
    const auto end = std::min(number.find_first_not_of("0123456789", point + 1), number.size());
    const bool plain = end == number.size() || std::string_view("eE").find(number[end]) == std::string_view::npos;
    if (plain) {
        number.resize(std::min(point + 3, end));
    }
    const double hundredths = numberAtStart(number) * 100.0;
    const bool fits = hundredths < tooLarge && hundredths > -tooLarge;
    return fits ? static_cast<std::int64_t>(plain ? std::round(hundredths) : hundredths) : 0;
}

wire::WideString priceProblem(const platform::Locale& locale, wire::WideStringView text) {
    return text.empty() || isNumber(locale, text) ? wire::WideString()
                                                  : readAs(formatPrice(locale, parsePrice(locale, text)));
}

wire::WideString hundredthsProblem(const platform::Locale& locale, wire::WideStringView text) {
    constexpr double least = 1e-6;
    if (text.empty()) {
        return {};
    }
    const double read = static_cast<double>(parseHundredths(locale, text)) / 100;
    if (!isNumber(locale, text)) {
        return readAs(formatAmount(locale, read));
    }
    const bool exact = std::abs(numberAtStart(withPoint(locale, text)) - read) < least;
    return exact ? wire::WideString() : u"Only two decimals are kept; it is read as " + formatAmount(locale, read);
}

} // namespace rules
