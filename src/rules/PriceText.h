#pragma once

#include "platform/Locale.h"
#include "wire/Text.h"

#include <cstdint>

namespace rules {

// Prices and multipliers are shown and read with this many decimals.
constexpr int priceDigits = 4;

// A number in the user's format, with so many decimals, or as many as the locale has if those are more.
[[nodiscard]] wire::WideString formatPrice(const platform::Locale& locale, double value, int digits = priceDigits);

// The same with two decimals, whatever the locale has.
[[nodiscard]] wire::WideString formatAmount(const platform::Locale& locale, double value);

// The number at the beginning of a text in which the user's decimal separator or a point stands before the decimals;
// what follows the number is ignored. A text that is not a number, or not one that fits into a price, reads as 0.
// Thousands separators are not understood: "1.234,5" is 1.234 where the comma separates. That must stay.
[[nodiscard]] float parsePrice(const platform::Locale& locale, wire::WideStringView text);

// The same in whole hundredths, truncated and not rounded: "19.999" is 1999, and "7.70" is exactly 770, although the
// nearest floating-point number is less. A text that is not a number, or too large a number, reads as 0.
[[nodiscard]] std::int64_t parseHundredths(const platform::Locale& locale, wire::WideStringView text);

// What a person who types the text should know: that it is not a number, or has more decimals than are kept, and as
// what it is read. Empty for an empty text and for one that is read as it stands.
[[nodiscard]] wire::WideString priceProblem(const platform::Locale& locale, wire::WideStringView text);
[[nodiscard]] wire::WideString hundredthsProblem(const platform::Locale& locale, wire::WideStringView text);

} // namespace rules
