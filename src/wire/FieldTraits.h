#pragma once

#include "wire/FieldKind.h"
#include "wire/Text.h"
#include "wire/WireUuid.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

// How a value is encoded, by its C++ type, defined once for everything that writes, reads or sizes fields:
//
//     std::uint8_t u8, bool bool8, std::uint16_t and std::int16_t u16, std::uint32_t u32, std::int32_t i32, float f32,
//     std::int64_t and std::uint64_t i64 (the low 32 bits go out, what comes in is sign-extended), std::string str8,
//     WideString str16, Uuid uuid, std::optional<T> optional, std::vector<T> list, an enumeration as its number; a
//     record adds its own (protocol/WireOrder.h)
//
// Each has its kind, the minimum number of bytes it takes, and how it is put into a sink and got from a source. A sink
// takes
//
//     number(N)               of std::uint8_t, std::uint16_t, std::uint32_t, std::int32_t or float, as its bytes
//     text(std::string_view)  text(WideStringView)  uuid(const Uuid&)
//
// and a source gives
//
//     number<N>() -> N        text() -> std::string_view, until the next call        text(WideString&)
//     uuid() -> Uuid          remaining() -> how many bytes are left
namespace wire {

template <typename T>
struct FieldTraits;

// A value that is sent as one number type and received as another of the same size.
template <typename T, FieldKind fieldKind, typename Sent, typename Received = Sent>
struct NumberTraits {
    using Number = Sent;
    static constexpr FieldKind kind = fieldKind;
    static constexpr std::size_t leastSize = sizeof(Sent);

    template <typename Sink>
    static void put(Sink& sink, T value) {
        sink.number(static_cast<Sent>(value));
    }
    template <typename Source>
    static void get(Source& source, T& value) {
        value = static_cast<T>(source.template number<Received>());
    }
};

template <>
struct FieldTraits<std::uint8_t> : NumberTraits<std::uint8_t, FieldKind::u8, std::uint8_t> {};
template <>
struct FieldTraits<std::uint16_t> : NumberTraits<std::uint16_t, FieldKind::u16, std::uint16_t> {};
template <>
struct FieldTraits<std::int16_t> : NumberTraits<std::int16_t, FieldKind::u16, std::uint16_t> {};
template <>
struct FieldTraits<std::uint32_t> : NumberTraits<std::uint32_t, FieldKind::u32, std::uint32_t> {};
template <>
struct FieldTraits<std::int32_t> : NumberTraits<std::int32_t, FieldKind::i32, std::int32_t> {};
template <>
struct FieldTraits<std::int64_t> : NumberTraits<std::int64_t, FieldKind::i64, std::uint32_t, std::int32_t> {};
template <>
struct FieldTraits<std::uint64_t> : NumberTraits<std::uint64_t, FieldKind::i64, std::uint32_t, std::int32_t> {};
template <>
struct FieldTraits<float> : NumberTraits<float, FieldKind::f32, float> {};

template <>
struct FieldTraits<bool> {
    using Number = std::uint8_t;
    static constexpr FieldKind kind = FieldKind::bool8;
    static constexpr std::size_t leastSize = 1;

    template <typename Sink>
    static void put(Sink& sink, bool value) {
        sink.number(static_cast<std::uint8_t>(value ? 1 : 0));
    }
    template <typename Source>
    static void get(Source& source, bool& value) {
        value = source.template number<std::uint8_t>() != 0;
    }
};

template <typename T>
requires std::is_enum_v<T>
struct FieldTraits<T> {
    using Underlying = FieldTraits<std::underlying_type_t<T>>;
    using Number = typename Underlying::Number;
    static constexpr FieldKind kind = Underlying::kind;
    static constexpr std::size_t leastSize = Underlying::leastSize;

    template <typename Sink>
    static void put(Sink& sink, T value) {
        Underlying::put(sink, static_cast<std::underlying_type_t<T>>(value));
    }
    template <typename Source>
    static void get(Source& source, T& value) {
        std::underlying_type_t<T> number{};
        Underlying::get(source, number);
        value = static_cast<T>(number);
    }
};

// Reading a text reuses the memory of the one that it replaces.
template <>
struct FieldTraits<std::string> {
    static constexpr FieldKind kind = FieldKind::str8;
    static constexpr std::size_t leastSize = 2;

    template <typename Sink>
    static void put(Sink& sink, std::string_view value) {
        sink.text(value);
    }
    template <typename Source>
    static void get(Source& source, std::string& value) {
        value = source.text();
    }
};

template <>
struct FieldTraits<WideString> {
    static constexpr FieldKind kind = FieldKind::str16;
    static constexpr std::size_t leastSize = 2;

    template <typename Sink>
    static void put(Sink& sink, WideStringView value) {
        sink.text(value);
    }
    template <typename Source>
    static void get(Source& source, WideString& value) {
        source.text(value);
    }
};

template <>
struct FieldTraits<Uuid> {
    static constexpr FieldKind kind = FieldKind::uuid;
    static constexpr std::size_t leastSize = 2;

    template <typename Sink>
    static void put(Sink& sink, const Uuid& value) {
        sink.uuid(value);
    }
    template <typename Source>
    static void get(Source& source, Uuid& value) {
        value = source.uuid();
    }
};

template <typename T>
struct FieldTraits<std::optional<T>> {
    using Element = T;
    static constexpr FieldKind kind = FieldKind::optional;
    static constexpr std::size_t leastSize = 1;

    template <typename Sink>
    static void put(Sink& sink, const std::optional<T>& value) {
        FieldTraits<bool>::put(sink, value.has_value());
        if (value) {
            FieldTraits<T>::put(sink, *value);
        }
    }
    template <typename Source>
    static void get(Source& source, std::optional<T>& value) {
        bool present = false;
        FieldTraits<bool>::get(source, present);
        if (!present) {
            value.reset();
            return;
        }
        FieldTraits<T>::get(source, value ? *value : value.emplace());
    }
};

// The wire can't carry a list of more than 65,535 elements: the caller makes sure of that. Reading overwrites existing
// elements in place, so that a list that is read again reuses the memory of its texts.
template <typename T>
struct FieldTraits<std::vector<T>> {
    using Element = T;
    static constexpr FieldKind kind = FieldKind::list;
    static constexpr std::size_t leastSize = 2;

    template <typename Sink>
    static void put(Sink& sink, const std::vector<T>& values) {
        sink.number(static_cast<std::uint16_t>(values.size()));
        for (const T& value : values) {
            FieldTraits<T>::put(sink, value);
        }
    }
    template <typename Source>
    static void get(Source& source, std::vector<T>& values) {
        const std::size_t count = source.template number<std::uint16_t>();
        values.resize(std::min(values.size(), count));
        // The count comes from the peer: no more is reserved than the remaining bytes can hold.
        values.reserve(std::min(count, source.remaining() / std::max<std::size_t>(FieldTraits<T>::leastSize, 1)));
        for (std::size_t index = 0; index < count; ++index) {
            FieldTraits<T>::get(source, index < values.size() ? values[index] : values.emplace_back());
        }
    }
};

// A sink that only counts bytes; a uuid counts as uuidSize.
template <std::size_t uuidSize>
struct SizeSink {
    template <typename N>
    void number(N /*value*/) {
        size += sizeof(N);
    }
    void text(std::string_view value) { size += 2 + value.size(); }
    void text(WideStringView value) { size += 2 + value.size() * sizeof(char16_t); }
    void uuid(const Uuid& /*value*/) { size += uuidSize; }

    std::size_t size = 0;
};

// The bytes that a value takes on the wire as long as the conversion of wide text changes nothing.
template <typename T>
[[nodiscard]] std::size_t plainSize(const T& value) {
    SizeSink<2 + uuidLength> sink;
    FieldTraits<T>::put(sink, value);
    return sink.size;
}

} // namespace wire
