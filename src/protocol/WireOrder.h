#pragma once

#include "protocol/PlainWriter.h"
#include "protocol/RecordLayout.h"
#include "wire/FieldTraits.h"
#include "wire/Fields.h"
#include "wire/Message.h"
#include "wire/Text.h"
#include "wire/WireUuid.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

// A record is a plain struct that defines its wire order once, as data:
//
//     struct RegionRecord {
//         wire::WideString name;
//         std::int32_t id = 0;
//
//         static constexpr auto fields = wireOrder(field("name", &RegionRecord::name), field("id", &RegionRecord::id));
//     };
//
// The C++ type decides how a field is encoded (wire/FieldTraits.h); a nested record is encoded as its own fields.
//
// Reading, writing, sizing and the layouts for code that does not know the type all use that one list.
namespace protocol {

// A field's name and its member of the record.
template <class Record, class Value>
struct Field {
    std::string_view name;
    Value Record::*member;
};

namespace detail {

// A field at its place in the order, and all of them side by side. Every unit that includes a record pays for these
// types: a std::tuple, whose constructors weigh up every conversion, takes twice as long to compile.
template <std::size_t place, class Field>
struct Placed {
    Field field;
};

template <class Places, class... Fields>
struct PlacedFields;

template <std::size_t... place, class... Fields>
struct PlacedFields<std::index_sequence<place...>, Fields...> : Placed<place, Fields>... {};

} // namespace detail

// All fields of a record, in the order of the wire.
template <class... Fields>
struct WireOrder : detail::PlacedFields<std::index_sequence_for<Fields...>, Fields...> {
    static constexpr std::size_t count = sizeof...(Fields);
};

template <class Record, class Value>
constexpr Field<Record, Value> field(std::string_view name, Value Record::*member) {
    return {name, member};
}

template <class... Fields>
constexpr WireOrder<Fields...> wireOrder(Fields... fields) {
    return {{{fields}...}};
}

template <class T>
concept Record = requires {
    T::fields.count;
};

namespace detail {

template <class Action, std::size_t... place, class... Fields>
constexpr void eachOf(const PlacedFields<std::index_sequence<place...>, Fields...>& order, Action&& action) {
    (action(static_cast<const Placed<place, Fields>&>(order).field), ...);
}

// Calls action with each field of the record's type, in order.
template <Record R, class Action>
constexpr void eachField(Action&& action) {
    eachOf(R::fields, action);
}

} // namespace detail

// Calls visitor(name, value) for each field of the record, in order.
template <class R, class Visitor>
requires Record<std::remove_const_t<R>>
void forEachField(R& record, Visitor&& visitor) {
    detail::eachField<std::remove_const_t<R>>([&](const auto& one) { visitor(one.name, record.*(one.member)); });
}

} // namespace protocol

// A record is encoded as its fields, one after the other.
template <protocol::Record R>
struct wire::FieldTraits<R> {
    static constexpr wire::FieldKind kind = wire::FieldKind::record;
    static constexpr std::size_t leastSize = [] {
        std::size_t size = 0;
        protocol::detail::eachField<R>(
            [&]<class Value>(const protocol::Field<R, Value>&) { size += FieldTraits<Value>::leastSize; });
        return size;
    }();

    template <class Sink>
    static void put(Sink& sink, const R& record) {
        protocol::detail::eachField<R>([&]<class Value>(const protocol::Field<R, Value>& one) {
            FieldTraits<Value>::put(sink, record.*(one.member));
        });
    }
    template <class Source>
    static void get(Source& source, R& record) {
        protocol::detail::eachField<R>([&]<class Value>(const protocol::Field<R, Value>& one) {
            FieldTraits<Value>::get(source, record.*(one.member));
        });
    }
};

namespace protocol {

namespace detail {

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
    std::array<FieldInfo, R::fields.count> infos{};
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
    FieldInfo info{.name = name, .kind = wire::FieldTraits<T>::kind};
    if constexpr (requires { typename wire::FieldTraits<T>::Element; }) {
        using Element = typename wire::FieldTraits<T>::Element;
        info.elementKind = wire::FieldTraits<Element>::kind;
        static_assert(
            !requires { typename wire::FieldTraits<Element>::Element; },
            "a layout tells one level: put a record between them");
        if constexpr (Record<Element>) {
            info.element = &layoutOf<Element>;
        }
    } else if constexpr (Record<T>) {
        info.element = &layoutOf<T>;
    }
    return info;
}

} // namespace detail

// Reads the record's fields from the message, reusing the memory of its strings and lists. Throws what wire::Message
// throws; the record then contains the fields read before.
template <Record R>
void read(wire::Message& message, R& record) {
    wire::get(message, record);
}

template <Record R>
[[nodiscard]] R read(wire::Message& message) {
    R record;
    wire::get(message, record);
    return record;
}

// Appends the record's fields. The wire can't carry a list of more than 65,535 elements: the caller makes sure of that.
template <Record R>
void write(wire::Message& message, const R& record) {
    wire::put(message, record);
}

// A finished message with the record's fields. Throws std::length_error "vector<T> too long" beyond what a message can
// hold.
template <Record R>
[[nodiscard]] std::unique_ptr<wire::Message> makeDataMessage(const R& record) {
    auto message = std::make_unique<wire::Message>();
    const std::size_t size = wire::plainSize(record);
    const auto hint =
        static_cast<std::uint32_t>(std::min<std::size_t>(size, std::numeric_limits<std::uint32_t>::max()));
    message->beginMessage(hint);
    PlainWriter writer(message->extend(size).data());
    wire::FieldTraits<R>::put(writer, record);
    if (!writer.plain()) {
        message->beginMessage(hint);
        write(*message, record);
    }
    message->setKind(wire::MessageKind::Data);
    message->rewind();
    return message;
}

} // namespace protocol
