#pragma once

#include "platform/Locale.h"

#include <utility>

namespace support {

// A locale with the number format that a test sets.
class FixedLocale final : public platform::Locale {
public:
    explicit FixedLocale(platform::NumberFormat format) : format_(std::move(format)) {}

    [[nodiscard]] const platform::NumberFormat& numberFormat() const override { return format_; }

private:
    platform::NumberFormat format_;
};

// A comma before the decimals and points between the thousands, as in German.
inline const FixedLocale& germanLocale() {
    static const FixedLocale locale(
        {.decimalSeparator = u",", .thousandsSeparator = u".", .grouping = {3, 3}, .decimals = 2});
    return locale;
}

// A point before the decimals and commas between the thousands, as in English.
inline const FixedLocale& englishLocale() {
    static const FixedLocale locale(
        {.decimalSeparator = u".", .thousandsSeparator = u",", .grouping = {3, 3}, .decimals = 2});
    return locale;
}

} // namespace support
