#include "protocol/FieldValue.h"

#include "wire/Fields.h"

#include <type_traits>

namespace protocol {
namespace {

template <class T>
FieldValue take(wire::Message& message) {
    T value{};
    wire::get(message, value);
    return {std::move(value)};
}

FieldValue readOne(wire::Message& message, FieldKind kind, const FieldInfo& info);

FieldValue readList(wire::Message& message, const FieldInfo& info) {
    const std::uint16_t count = message.getUInt16();
    FieldList list;
    for (std::uint32_t index = 0; index < count; ++index) {
        list.push_back(readOne(message, info.elementKind, info));
    }
    return {std::move(list)};
}

FieldValue readOne(wire::Message& message, FieldKind kind, const FieldInfo& info) {
    switch (kind) {
    case FieldKind::u8:
        return take<std::uint8_t>(message);
    case FieldKind::bool8:
        return take<bool>(message);
    case FieldKind::u16:
        return take<std::uint16_t>(message);
    case FieldKind::u32:
        return take<std::uint32_t>(message);
    case FieldKind::i32:
        return take<std::int32_t>(message);
    case FieldKind::i64:
        return take<std::int64_t>(message);
    case FieldKind::f32:
        return take<float>(message);
    case FieldKind::str8:
        return take<std::string>(message);
    case FieldKind::str16:
        return take<wire::WideString>(message);
    case FieldKind::uuid:
        return take<wire::Uuid>(message);
    case FieldKind::optional:
        return message.getByte() != 0 ? readOne(message, info.elementKind, info) : FieldValue{};
    case FieldKind::list:
        return readList(message, info);
    case FieldKind::record:
        return {readFields(message, *info.element)};
    }
    return {};
}

} // namespace

FieldRecord readFields(wire::Message& message, const RecordLayout& layout) {
    FieldRecord record;
    record.reserve(layout.fields.size());
    for (const FieldInfo& info : layout.fields) {
        record.push_back({info.name, readOne(message, info.kind, info)});
    }
    return record;
}

void writeField(wire::Message& message, const FieldValue& field) {
    std::visit(
        [&message]<class T>(const T& value) {
            if constexpr (std::is_same_v<T, FieldList>) {
                message.putUInt16(static_cast<std::uint16_t>(value.size()));
                for (const FieldValue& element : value) {
                    writeField(message, element);
                }
            } else if constexpr (std::is_same_v<T, FieldRecord>) {
                for (const NamedValue& element : value) {
                    writeField(message, element.value);
                }
            } else if constexpr (!std::is_same_v<T, std::monostate>) {
                wire::put(message, value);
            }
        },
        field.value);
}

std::unique_ptr<wire::Message> makeDataMessage(std::span<const FieldValue> fields) {
    if (fields.empty()) {
        return nullptr;
    }
    auto message = std::make_unique<wire::Message>();
    message->beginMessage(0);
    for (const FieldValue& field : fields) {
        writeField(*message, field);
    }
    message->setKind(wire::MessageKind::Data);
    message->rewind();
    return message;
}

} // namespace protocol
