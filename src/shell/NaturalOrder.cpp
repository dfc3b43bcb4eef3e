#include "shell/NaturalOrder.h"

#include "console/CaseFold.h"
#include "shell/BaseLetter.h"

#include <algorithm>

namespace shell {
namespace {

constexpr bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

} // namespace

wire::WideString naturalKey(wire::WideStringView text) {
    wire::WideString key;
    key.reserve(text.size() + 4);
    for (auto at = text.begin(); at != text.end();) {
        if (!isDigit(*at)) {
            key.push_back(baseLetter(console::foldCase(*at++)));
            continue;
        }
        const auto end = std::find_if_not(at, text.end(), isDigit);
        const auto digits = std::find_if(at, end, [](char16_t unit) { return unit != u'0'; });
        // A number is a zero, the count of its digits, and the digits: the longer number is the greater one.
        key.push_back(u'0');
        key.push_back(static_cast<char16_t>(std::min<std::ptrdiff_t>(end - digits, 0xFFFF)));
        key.append(digits, end);
        at = end;
    }
    return key;
}

} // namespace shell
