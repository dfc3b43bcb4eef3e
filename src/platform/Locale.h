#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <vector>

namespace platform {

// How the user writes numbers. By default plainly: a decimal point, and no groups.
struct NumberFormat {
    wire::WideString decimalSeparator{u"."};
    wire::WideString thousandsSeparator{}; // may be several units, or one that looks like a blank
    // The number of digits in each group, from the decimal separator to the left; the last number applies to all
    // further groups, unless it is 0, which leaves the rest undivided. Empty for no groups at all.
    std::vector<std::uint8_t> grouping{};
    int decimals = 2; // of a number, unless more are requested
};

// What a host knows about the user's locale. The default is plain formatting.
class Locale {
public:
    virtual ~Locale() = default;

    [[nodiscard]] virtual const NumberFormat& numberFormat() const {
        static const NumberFormat plain;
        return plain;
    }
};

inline const Locale plainLocale{};

} // namespace platform
