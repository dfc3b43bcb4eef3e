#include "server/store/NameKey.h"

#include "wire/CaseFold.h"

namespace server {

Bytes nameKey(std::u16string_view name) {
    Bytes key;
    key.reserve(name.size() * 2);
    for (const char16_t unit : name) {
        const char16_t folded = wire::foldCase(unit);
        key.push_back(static_cast<std::uint8_t>(folded >> 8));
        key.push_back(static_cast<std::uint8_t>(folded & 0xFF));
    }
    return key;
}

} // namespace server
