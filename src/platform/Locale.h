#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <vector>

namespace platform {

// How the user writes numbers. The default is the plain way: a point, and no groups.
struct NumberFormat {
    wire::WideString decimalSeparator{u"."};
    wire::WideString thousandsSeparator{}; // may be several units, or one that looks like a blank
    // How many digits stand in each group, from the decimal separator to the left; the last number goes for all further
    // groups, unless it is 0: what is left is then not divided. Empty for no groups at all.
    std::vector<std::uint8_t> grouping{};
    int decimals = 2; // that a number has where nobody asks for more
};

// What a host knows of the user's ways. The default is the plain way.
class Locale {
public:
    virtual ~Locale() = default;

    virtual const NumberFormat& numberFormat() const {
        static const NumberFormat plain;
        return plain;
    }
};

inline const Locale plainLocale{};

} // namespace platform
