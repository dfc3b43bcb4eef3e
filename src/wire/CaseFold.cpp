#include "wire/CaseFold.h"

#include <algorithm>

namespace wire {
namespace {

constexpr bool between(char16_t unit, char16_t first, char16_t last) {
    return unit >= first && unit <= last;
}

// Blocks in which upper and lower case alternate, the upper one on an even or on an odd number.
constexpr bool alternatesFromEven(char16_t unit) {
    return (between(unit, 0x100, 0x137) && unit != 0x130 && unit != 0x131) || between(unit, 0x14A, 0x177) ||
           between(unit, 0x460, 0x481) || between(unit, 0x48A, 0x4BF) || between(unit, 0x4D0, 0x52F) ||
           between(unit, 0x1E00, 0x1E95) || between(unit, 0x1EA0, 0x1EFF);
}

constexpr bool alternatesFromOdd(char16_t unit) {
    return between(unit, 0x139, 0x148) || between(unit, 0x179, 0x17E);
}

} // namespace

char16_t foldCase(char16_t unit) {
    if (between(unit, u'A', u'Z') || (between(unit, 0xC0, 0xDE) && unit != 0xD7) ||
        (between(unit, 0x391, 0x3AB) && unit != 0x3A2) || between(unit, 0x410, 0x42F)) {
        return static_cast<char16_t>(unit + 0x20);
    }
    if (between(unit, 0x400, 0x40F)) {
        return static_cast<char16_t>(unit + 0x50);
    }
    if (unit == 0x178) {
        return 0xFF; // the capital of this letter stands in another block
    }
    if (unit == 0x3C2) {
        return 0x3C3; // the sigma at the end of a word
    }
    if ((alternatesFromEven(unit) && unit % 2 == 0) || (alternatesFromOdd(unit) && unit % 2 == 1)) {
        return static_cast<char16_t>(unit + 1);
    }
    return unit;
}

int compareIgnoringCase(std::u16string_view left, std::u16string_view right) {
    const auto [l, r] = std::mismatch(left.begin(), left.end(), right.begin(), right.end(),
                                      [](char16_t a, char16_t b) { return foldCase(a) == foldCase(b); });
    if (l == left.end() || r == right.end()) {
        return static_cast<int>(r == right.end()) - static_cast<int>(l == left.end());
    }
    return foldCase(*l) < foldCase(*r) ? -1 : 1;
}

} // namespace wire
