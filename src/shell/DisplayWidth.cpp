#include "shell/DisplayWidth.h"

#include <algorithm>
#include <array>
#include <span>

namespace shell {
namespace {

struct Range {
    char32_t first;
    char32_t last;
};

constexpr std::array widthless{
    Range{0x0300, 0x036F}, Range{0x0483, 0x0489}, Range{0x0591, 0x05BD}, Range{0x0610, 0x061A},   Range{0x064B, 0x065F},
    Range{0x06D6, 0x06DC}, Range{0x0E31, 0x0E31}, Range{0x0E34, 0x0E3A}, Range{0x0E47, 0x0E4E},   Range{0x1AB0, 0x1AFF},
    Range{0x1DC0, 0x1DFF}, Range{0x200B, 0x200F}, Range{0x202A, 0x202E}, Range{0x2060, 0x2069},   Range{0x20D0, 0x20FF},
    Range{0xFE00, 0xFE0F}, Range{0xFE20, 0xFE2F}, Range{0xFEFF, 0xFEFF}, Range{0xE0100, 0xE01EF},
};
constexpr std::array wide{
    Range{0x1100, 0x115F},   Range{0x231A, 0x231B},   Range{0x2E80, 0x303E},   Range{0x3041, 0x33FF},
    Range{0x3400, 0x4DBF},   Range{0x4E00, 0x9FFF},   Range{0xA000, 0xA4CF},   Range{0xA960, 0xA97F},
    Range{0xAC00, 0xD7A3},   Range{0xF900, 0xFAFF},   Range{0xFE30, 0xFE6F},   Range{0xFF00, 0xFF60},
    Range{0xFFE0, 0xFFE6},   Range{0x1F300, 0x1F64F}, Range{0x1F680, 0x1F6FF}, Range{0x1F900, 0x1F9FF},
    Range{0x1FA70, 0x1FAFF}, Range{0x20000, 0x3FFFD},
};

bool isIn(std::span<const Range> ranges, char32_t point) {
    const auto range = std::ranges::lower_bound(ranges, point, {}, &Range::last);
    return range != ranges.end() && range->first <= point;
}

bool isHigh(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLow(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

// The point at a place, which is moved behind it.
char32_t takePoint(wire::WideStringView text, std::size_t& place) {
    const char32_t unit = text[place++];
    if (!isHigh(static_cast<char16_t>(unit)) || place == text.size() || !isLow(text[place])) {
        return unit;
    }
    return 0x10000U + ((unit - 0xD800U) << 10U) + (static_cast<char32_t>(text[place++]) - 0xDC00U);
}

std::size_t widthOf(char32_t point) {
    return isIn(widthless, point) ? 0U : isIn(wide, point) ? 2U : 1U;
}

} // namespace

std::size_t displayWidth(wire::WideStringView text) {
    std::size_t width = 0;
    for (std::size_t place = 0; place < text.size();) {
        width += widthOf(takePoint(text, place));
    }
    return width;
}

wire::WideString elided(wire::WideStringView text, std::size_t width) {
    if (displayWidth(text) <= width) {
        return wire::WideString(text);
    }
    std::size_t end = 0;
    for (std::size_t place = 0, used = 1; place < text.size(); end = place) {
        used += widthOf(takePoint(text, place));
        if (used > width) {
            break;
        }
    }
    return wire::WideString(text.substr(0, end)) + (width == 0 ? u"" : u"…");
}

} // namespace shell
