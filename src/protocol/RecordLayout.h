#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace protocol {

// How one field travels.
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
    record,   // the fields of another record in its place
};

// The kind as people write it ("u8", "bool", "str16", ...).
[[nodiscard]] constexpr std::string_view nameOf(FieldKind kind) {
    constexpr std::string_view names[] = {"u8",   "bool",  "u16",  "u32",      "i32",  "i64",   "f32",
                                          "str8", "str16", "uuid", "optional", "list", "record"};
    return names[static_cast<std::size_t>(kind)];
}

struct RecordLayout;

// One field of a record: its name, and how it travels.
struct FieldInfo {
    std::string_view name;
    FieldKind kind = FieldKind::u8;
    FieldKind elementKind = FieldKind::u8; // of an optional or a list
    const RecordLayout* element = nullptr; // of a record, or of an optional or a list of records
};

// The fields of a record in wire order, for those that do not know its type.
struct RecordLayout {
    std::string_view name;
    std::span<const FieldInfo> fields; // empty: nothing is sent at all
};

} // namespace protocol
