#pragma once

#include "wire/FieldKind.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace protocol {

using wire::FieldKind;
using wire::nameOf;

struct RecordLayout;

// One field of a record: its name, and how it is encoded.
struct FieldInfo {
    std::string_view name;
    FieldKind kind = FieldKind::u8;
    FieldKind elementKind = FieldKind::u8; // of an optional or a list
    const RecordLayout* element = nullptr; // of a record, or of an optional or a list of records
};

// The fields of a record in wire order, for code that does not know its type.
struct RecordLayout {
    std::string_view name;
    std::span<const FieldInfo> fields; // empty: nothing is sent at all
};

} // namespace protocol
