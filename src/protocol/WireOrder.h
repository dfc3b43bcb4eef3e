#pragma once

#include "protocol/PlainWriter.h"
#include "protocol/RecordLayout.h"
#include "wire/Fields.h"
#include "wire/Message.h"
#include "wire/Text.h"
#include "wire/WireUuid.h"

#include <array>
#include <concepts>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

// A record is a plain struct that says its wire order once, as data:
//
//     struct RegionRecord {
//         wire::WideString name;
//         std::int32_t id = 0;
//
//         static constexpr auto fields = wireOrder(field("name", &RegionRecord::name), field("id", &RegionRecord::id));
//     };
//
// The C++ type decides how a field travels:
//
//     std::uint8_t u8, bool bool8, std::uint16_t u16, std::uint32_t u32, std::int32_t i32, std::int64_t i64, float f32,
//     std::string str8, wire::WideString str16, wire::Uuid uuid, std::optional<T> optional, std::vector<T> list,
//     and a record its own fields in its place.
//
// Reading, writing, sizing and the layouts for those that do not know the type all walk that one list.
namespace protocol {

// A field's name and where it stands in its record.
template <class Record, class Value>
struct Field {
    std::string_view name;
    Value Record::*member;
};

// All fields of a record, in the order of the wire.
template <class... Fields>
struct WireOrder {
    std::tuple<Fields...> list;
};

template <class Record, class Value>
constexpr Field<Record, Value> field(std::string_view name, Value Record::*member) {
    return {name, member};
}

template <class... Fields>
constexpr WireOrder<Fields...> wireOrder(Fields... fields) {
    return {std::tuple<Fields...>{fields...}};
}

template <class T>
concept Record = requires {
    T::fields.list;
};

namespace detail {

template <class T>
inline constexpr bool isOptional = false;
template <class T>
inline constexpr bool isOptional<std::optional<T>> = true;
template <class T>
inline constexpr bool isList = false;
template <class T>
inline constexpr bool isList<std::vector<T>> = true;

// Calls action with each field of the record's type, in order.
template <Record R, class Action>
constexpr void eachField(Action&& action) {
    [&]<std::size_t... index>(std::index_sequence<index...>) {
        (action(std::get<index>(R::fields.list)), ...);
    }
    (std::make_index_sequence<std::tuple_size_v<decltype(R::fields.list)>>{});
}

} // namespace detail

// Calls visitor(name, value) for each field of the record, in order.
template <class R, class Visitor>
requires Record<std::remove_const_t<R>>
void forEachField(R& record, Visitor&& visitor) {
    detail::eachField<std::remove_const_t<R>>([&](const auto& one) { visitor(one.name, record.*(one.member)); });
}

namespace detail {

template <class T>
constexpr FieldKind kindOf() {
    if constexpr (std::same_as<T, std::uint8_t>)
        return FieldKind::u8;
    else if constexpr (std::same_as<T, bool>)
        return FieldKind::bool8;
    else if constexpr (std::same_as<T, std::uint16_t>)
        return FieldKind::u16;
    else if constexpr (std::same_as<T, std::uint32_t>)
        return FieldKind::u32;
    else if constexpr (std::same_as<T, std::int32_t>)
        return FieldKind::i32;
    else if constexpr (std::same_as<T, std::int64_t>)
        return FieldKind::i64;
    else if constexpr (std::same_as<T, float>)
        return FieldKind::f32;
    else if constexpr (std::same_as<T, std::string>)
        return FieldKind::str8;
    else if constexpr (std::same_as<T, wire::WideString>)
        return FieldKind::str16;
    else if constexpr (std::same_as<T, wire::Uuid>)
        return FieldKind::uuid;
    else if constexpr (isOptional<T>)
        return FieldKind::optional;
    else if constexpr (isList<T>)
        return FieldKind::list;
    else {
        static_assert(Record<T>, "this type has no form on the wire");
        return FieldKind::record;
    }
}

template <class T>
constexpr FieldInfo infoOf(std::string_view name);

template <Record R>
constexpr std::string_view recordName() {
    const std::string_view signature = __PRETTY_FUNCTION__; // "... [with R = protocol::RegionRecord; ...]"
    const auto from = signature.find("R = ") + 4;
    const auto qualified = signature.substr(from, signature.find_first_of(";]", from) - from);
    return qualified.substr(qualified.rfind(':') + 1);
}

template <Record R>
constexpr auto fieldInfos() {
    std::array<FieldInfo, std::tuple_size_v<decltype(R::fields.list)>> infos{};
    std::size_t at = 0;
    eachField<R>([&]<class Value>(const Field<R, Value>& one) { infos[at++] = infoOf<Value>(one.name); });
    return infos;
}

template <Record R>
inline constexpr auto infosOf = fieldInfos<R>();

} // namespace detail

// The layout of a record's type.
template <Record R>
inline constexpr RecordLayout layoutOf{detail::recordName<R>(), detail::infosOf<R>};

namespace detail {

template <class T>
constexpr FieldInfo infoOf(std::string_view name) {
    FieldInfo info{.name = name, .kind = kindOf<T>()};
    if constexpr (isOptional<T> || isList<T>) {
        using Element = typename T::value_type;
        static_assert(!isOptional<Element> && !isList<Element>, "a layout tells one level: put a record between them");
        info.elementKind = kindOf<Element>();
        if constexpr (Record<Element>)
            info.element = &layoutOf<Element>;
    } else if constexpr (Record<T>) {
        info.element = &layoutOf<T>;
    }
    return info;
}

template <class T>
void readValue(wire::Message& message, T& value) {
    if constexpr (isOptional<T>) {
        bool present = false;
        wire::get(message, present);
        if (!present)
            return value.reset();
        if (!value)
            value.emplace();
        readValue(message, *value);
    } else if constexpr (isList<T>) {
        std::uint16_t count = 0;
        wire::get(message, count);
        // A count is a peer's word: what it announces is not reserved before it has come.
        for (std::size_t index = 0; index < count; ++index) {
            if (index == value.size())
                value.emplace_back();
            readValue(message, value[index]);
        }
        value.resize(count);
    } else if constexpr (Record<T>) {
        eachField<T>([&](const auto& one) { readValue(message, value.*(one.member)); });
    } else {
        wire::get(message, value);
    }
}

template <class T>
void writeValue(wire::Message& message, const T& value) {
    if constexpr (isOptional<T>) {
        wire::put(message, value.has_value());
        if (value)
            writeValue(message, *value);
    } else if constexpr (isList<T>) {
        wire::put(message, static_cast<std::uint16_t>(value.size()));
        for (const auto& element : value)
            writeValue(message, element);
    } else if constexpr (Record<T>) {
        eachField<T>([&](const auto& one) { writeValue(message, value.*(one.member)); });
    } else {
        wire::put(message, value);
    }
}

template <class T>
std::uint32_t sizeOfValue(const T& value) {
    if constexpr (isOptional<T>) {
        return 1U + (value ? sizeOfValue(*value) : 0U);
    } else if constexpr (isList<T>) {
        std::uint32_t size = 2;
        for (const auto& element : value)
            size += sizeOfValue(element);
        return size;
    } else if constexpr (Record<T>) {
        std::uint32_t size = 0;
        eachField<T>([&](const auto& one) { size += sizeOfValue(value.*(one.member)); });
        return size;
    } else {
        return wire::encodedSize(value);
    }
}

// The bytes that the value takes on the wire as long as no text of it is changed by the wire's conversion.
template <class T>
std::size_t plainSize(const T& value) {
    if constexpr (isOptional<T>) {
        return 1U + (value ? plainSize(*value) : 0U);
    } else if constexpr (isList<T>) {
        std::size_t size = 2;
        for (const auto& element : value)
            size += plainSize(element);
        return size;
    } else if constexpr (Record<T>) {
        std::size_t size = 0;
        eachField<T>([&](const auto& one) { size += plainSize(value.*(one.member)); });
        return size;
    } else if constexpr (std::same_as<T, wire::Uuid>) {
        return 2U + 36U;
    } else {
        return wire::encodedSize(value);
    }
}

template <class T>
void writePlain(PlainWriter& writer, const T& value) {
    if constexpr (isOptional<T>) {
        writer.number(static_cast<std::uint8_t>(value.has_value()));
        if (value)
            writePlain(writer, *value);
    } else if constexpr (isList<T>) {
        writer.number(static_cast<std::uint16_t>(value.size()));
        for (const auto& element : value)
            writePlain(writer, element);
    } else if constexpr (Record<T>) {
        eachField<T>([&](const auto& one) { writePlain(writer, value.*(one.member)); });
    } else if constexpr (std::same_as<T, wire::Uuid>) {
        const auto characters = wire::uuidCharacters(value);
        writer.text(std::string_view(characters.data(), characters.size()));
    } else if constexpr (std::same_as<T, bool>) {
        writer.number(static_cast<std::uint8_t>(value));
    } else if constexpr (std::same_as<T, std::int64_t>) {
        writer.number(static_cast<std::uint32_t>(value));
    } else if constexpr (std::is_arithmetic_v<T>) {
        writer.number(value);
    } else {
        writer.text(value);
    }
}

} // namespace detail

// Takes the record's fields off the message, into the strings and lists that the record has. Throws what wire::Message
// throws; the record then holds the fields that came before.
template <Record R>
void read(wire::Message& message, R& record) {
    detail::readValue(message, record);
}

template <Record R>
[[nodiscard]] R read(wire::Message& message) {
    R record;
    detail::readValue(message, record);
    return record;
}

// Appends the record's fields. A list of more than 65,535 elements cannot be told on the wire: its caller sees to it.
template <Record R>
void write(wire::Message& message, const R& record) {
    detail::writeValue(message, record);
}

// The number of bytes to reserve for the record's fields.
template <Record R>
[[nodiscard]] std::uint32_t encodedSize(const R& record) {
    return detail::sizeOfValue(record);
}

// A finished message that holds the record's fields.
template <Record R>
[[nodiscard]] std::unique_ptr<wire::Message> makeDataMessage(const R& record) {
    auto message = std::make_unique<wire::Message>();
    const auto size = static_cast<std::uint32_t>(detail::plainSize(record));
    message->beginMessage(size);
    PlainWriter writer(message->extend(size).data());
    detail::writePlain(writer, record);
    if (!writer.plain()) {
        message->beginMessage(size);
        write(*message, record);
    }
    message->setKind(wire::MessageKind::Data);
    message->rewind();
    return message;
}

} // namespace protocol
