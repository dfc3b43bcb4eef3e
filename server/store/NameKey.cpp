#include "server/store/NameKey.h"

namespace server {

namespace {

bool between(char16_t unit, char16_t first, char16_t last) {
    return unit >= first && unit <= last;
}

// In these blocks a capital is followed by its small letter.
bool isPairedCapital(char16_t unit) {
    const bool evenCapital = between(unit, 0x0100, 0x0137) || between(unit, 0x014A, 0x0177) ||
                             between(unit, 0x0460, 0x0481) || between(unit, 0x048A, 0x04BF) ||
                             between(unit, 0x04D0, 0x052F) || between(unit, 0x1E00, 0x1E95) ||
                             between(unit, 0x1EA0, 0x1EFF);
    const bool oddCapital = between(unit, 0x0139, 0x0148) || between(unit, 0x0179, 0x017E);
    return (evenCapital && unit % 2 == 0) || (oddCapital && unit % 2 == 1);
}

char16_t fold(char16_t unit) {
    if (between(unit, u'A', u'Z') || (between(unit, 0x00C0, 0x00DE) && unit != 0x00D7) ||
        between(unit, 0x0391, 0x03AB) || between(unit, 0x0410, 0x042F))
        return static_cast<char16_t>(unit + 0x20);
    if (between(unit, 0x0400, 0x040F))
        return static_cast<char16_t>(unit + 0x50);
    return isPairedCapital(unit) ? static_cast<char16_t>(unit + 1) : unit;
}

} // namespace

Bytes nameKey(std::u16string_view name) {
    Bytes key;
    key.reserve(name.size() * 2);
    for (const char16_t unit : name) {
        const char16_t folded = fold(unit);
        key.push_back(static_cast<std::uint8_t>(folded >> 8));
        key.push_back(static_cast<std::uint8_t>(folded & 0xFF));
    }
    return key;
}

} // namespace server
