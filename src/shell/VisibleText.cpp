#include "shell/VisibleText.h"

#include <algorithm>

namespace shell {
namespace {

char16_t visible(char16_t unit) {
    if (unit < 0x20) {
        return static_cast<char16_t>(0x2400 + unit);
    }
    if (unit == 0x7F) {
        return 0x2421;
    }
    const bool misleads = (unit >= 0x80 && unit <= 0x9F) || (unit >= 0x2028 && unit <= 0x202E) ||
                          (unit >= 0x2066 && unit <= 0x2069) || unit == 0x200E || unit == 0x200F;
    return misleads ? u'\uFFFD' : unit;
}

} // namespace

wire::WideString visibleText(wire::WideStringView text) {
    wire::WideString result(text);
    std::ranges::transform(result, result.begin(), visible);
    return result;
}

} // namespace shell
