#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace console {

// The platform's 16-byte identity of a class or a node type, in the byte order in which the platform keeps it in
// memory.
struct Guid {
    std::array<std::uint8_t, 16> bytes{};

    friend constexpr bool operator==(const Guid&, const Guid&) = default;
};

// Reads "813A64F9-EC5E-4A73-9072-CC3667D1C40F" (upper or lower case, no braces); for constants of the program.
consteval Guid guid(std::u16string_view text) {
    if (text.size() != 36) {
        throw "a guid has 36 characters";
    }
    // The position of each byte's two digits: the first three groups are little-endian in memory.
    constexpr std::array<std::size_t, 16> places{6, 4, 2, 0, 11, 9, 16, 14, 19, 21, 24, 26, 28, 30, 32, 34};
    const auto digit = [](char16_t c) -> unsigned {
        if (c >= '0' && c <= '9') {
            return static_cast<unsigned>(c - '0');
        }
        if (c >= 'A' && c <= 'F') {
            return static_cast<unsigned>(c - 'A' + 10);
        }
        if (c >= 'a' && c <= 'f') {
            return static_cast<unsigned>(c - 'a' + 10);
        }
        throw "not a hexadecimal digit";
    };
    Guid result;
    for (std::size_t i = 0; i < places.size(); ++i) {
        result.bytes[i] = static_cast<std::uint8_t>(digit(text[places[i]]) * 16 + digit(text[places[i] + 1]));
    }
    return result;
}

} // namespace console
