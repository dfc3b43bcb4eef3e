#include "console/Guid.h"

namespace console {

std::u16string toText(const Guid& value) {
    // Which byte each two digits show: the first three groups are little-endian in memory.
    constexpr std::array<std::size_t, 16> order{3, 2, 1, 0, 5, 4, 7, 6, 8, 9, 10, 11, 12, 13, 14, 15};
    constexpr std::u16string_view digits = u"0123456789ABCDEF";
    std::u16string text;
    for (std::size_t i = 0; i < order.size(); ++i) {
        if (i == 4 || i == 6 || i == 8 || i == 10) {
            text += u'-';
        }
        const unsigned byte = value.bytes[order[i]];
        text += digits[byte / 16];
        text += digits[byte % 16];
    }
    return text;
}

} // namespace console
