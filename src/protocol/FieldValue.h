#pragma once

#include "protocol/RecordLayout.h"
#include "wire/Message.h"
#include "wire/Text.h"
#include "wire/WireUuid.h"

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace protocol {

struct FieldValue;
struct NamedValue;
using FieldList = std::vector<FieldValue>;
using FieldRecord = std::vector<NamedValue>;

// The value of one field, for code that does not know the type of its record. A missing optional is a monostate; a
// present one is its element.
struct FieldValue {
    std::variant<std::monostate, std::uint8_t, bool, std::uint16_t, std::uint32_t, std::int32_t, std::int64_t, float,
                 std::string, wire::WideString, wire::Uuid, FieldList, FieldRecord>
        value;
};

// A field of a record with its name.
struct NamedValue {
    std::string_view name; // of the layout
    FieldValue value;
};

// Reads a record's fields from the message according to its layout. Throws what wire::Message throws.
[[nodiscard]] FieldRecord readFields(wire::Message& message, const RecordLayout& layout);

// Appends the value in its own kind: a list with its count, a record as its fields, nothing for a monostate. An
// optional is a bool and then its element, written one by one.
void writeField(wire::Message& message, const FieldValue& value);

// A finished message with the fields in order; null without any, because a command without fields sends no message.
[[nodiscard]] std::unique_ptr<wire::Message> makeDataMessage(std::span<const FieldValue> fields);

} // namespace protocol
