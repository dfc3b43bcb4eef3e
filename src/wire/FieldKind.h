#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace wire {

// How one field is encoded on the wire.
enum class FieldKind : std::uint8_t {
    u8,
    bool8,
    u16,
    u32,
    i32, // as u32
    i64, // its low 32 bits, sign-extended by the reader
    f32,
    str8,
    str16,
    uuid,     // 36 characters as str8
    optional, // bool8, then the element only if that is true
    list,     // u16 count, then the elements one after the other
    record,   // the fields of another record, in line
};

// The name of the kind ("u8", "bool", "str16", ...).
[[nodiscard]] constexpr std::string_view nameOf(FieldKind kind) {
    constexpr std::string_view names[] = {"u8",   "bool",  "u16",  "u32",      "i32",  "i64",   "f32",
                                          "str8", "str16", "uuid", "optional", "list", "record"};
    return names[static_cast<std::size_t>(kind)];
}

} // namespace wire
