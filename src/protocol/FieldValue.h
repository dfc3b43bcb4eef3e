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

// The value of one field, for those that do not know the type of its record. A missing optional is a monostate; an
// optional that is there is its element.
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

// Takes a record's fields off the message as its layout tells. Throws what wire::Message throws.
[[nodiscard]] FieldRecord readFields(wire::Message& message, const RecordLayout& layout);

// Appends the value in its own kind: a list with its count, a record as its fields, nothing for a monostate. An
// optional is a bool and then its element, written one by one.
void writeField(wire::Message& message, const FieldValue& value);

// A finished message of the fields in their order; null without any, since a command without fields sends no message.
[[nodiscard]] std::unique_ptr<wire::Message> makeDataMessage(std::span<const FieldValue> fields);

} // namespace protocol
