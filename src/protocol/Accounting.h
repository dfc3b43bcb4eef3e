#pragma once

#include <cstdint>
#include <string_view>

namespace protocol {

// Who counts a printer's pages.
namespace accounting {
constexpr std::uint8_t internal = 0;
constexpr std::uint8_t external = 3; // what is written; 1 and 2 mean the same when they are read

constexpr bool isExternal(std::uint8_t value) {
    return value >= 1 && value <= external;
}

constexpr std::u16string_view nameOf(std::uint8_t value) {
    return isExternal(value) ? u"External" : u"Internal";
}

constexpr std::uint8_t valueOf(std::u16string_view name) {
    return name == u"External" ? external : internal;
}
} // namespace accounting

} // namespace protocol
