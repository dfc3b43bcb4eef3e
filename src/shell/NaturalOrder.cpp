#include "shell/NaturalOrder.h"

#include "shell/BaseLetter.h"
#include "wire/CaseFold.h"

#include <algorithm>

namespace shell {
namespace {

// The most units that the key of one unit takes: a lone digit becomes three.
constexpr std::size_t mostKeyUnits = 3;

constexpr bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

char16_t plainLetter(char16_t unit) {
    const char16_t folded = wire::foldCase(unit);
    return folded < 0x80 ? folded : baseLetter(folded); // nearly every unit is ASCII
}

char16_t* writeKey(wire::WideStringView text, char16_t* out) {
    for (auto at = text.begin(); at != text.end();) {
        if (!isDigit(*at)) {
            *out++ = plainLetter(*at++);
            continue;
        }
        const auto end = std::find_if_not(at, text.end(), isDigit);
        const auto digits = std::find_if(at, end, [](char16_t unit) { return unit != u'0'; });
        // A number is a zero, the count of its digits, and the digits: the longer number is the greater one.
        *out++ = u'0';
        *out++ = static_cast<char16_t>(std::min<std::ptrdiff_t>(end - digits, 0xFFFF));
        out = std::copy(digits, end, out);
        at = end;
    }
    return out;
}

} // namespace

wire::WideString naturalKey(wire::WideStringView text) {
    wire::WideString key;
    appendNaturalKey(key, text);
    return key;
}

void appendNaturalKey(wire::WideString& keys, wire::WideStringView text) {
    const auto before = keys.size();
    keys.resize(before + mostKeyUnits * text.size());
    const char16_t* const end = writeKey(text, keys.data() + before);
    keys.resize(static_cast<std::size_t>(end - keys.data()));
}

} // namespace shell
