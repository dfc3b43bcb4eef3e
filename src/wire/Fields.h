#pragma once

#include "wire/Message.h"
#include "wire/WireUuid.h"

#include <algorithm>
#include <concepts>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

// The field kinds of the wire by type: put appends a value, get reads into a reference (and reuses the memory of a text
// that is already there), encodedSize is what a value adds to the hint of beginMessage.
//
//     std::uint8_t u8, bool bool8, std::uint16_t and std::int16_t u16, std::uint32_t and std::int32_t u32, float f32,
//     std::int64_t and std::uint64_t u32 (the low 32 bits go out, what comes in is sign-extended), std::string str8,
//     WideString str16, Uuid uuid, std::optional<T> opt<T>, std::vector<T> list16<T>, an enumeration as its number
namespace wire {

template <typename T>
concept NumberField = std::same_as<T, std::uint8_t> || std::same_as<T, std::uint16_t> ||
    std::same_as<T, std::int16_t> || std::same_as<T, std::uint32_t> || std::same_as<T, std::int32_t> ||
    std::same_as<T, std::uint64_t> || std::same_as<T, std::int64_t>;

template <std::same_as<bool> T>
void put(Message& message, T value) {
    message.putByte(value ? 1 : 0);
}

template <NumberField T>
void put(Message& message, T value) {
    if constexpr (sizeof(T) == 1) {
        message.putByte(value);
    } else if constexpr (sizeof(T) == 2) {
        message.putUInt16(static_cast<std::uint16_t>(value));
    } else {
        message.putUInt32(static_cast<std::uint32_t>(value));
    }
}

template <typename T>
requires std::is_enum_v<T>
void put(Message& message, T value) {
    put(message, static_cast<std::underlying_type_t<T>>(value));
}

template <std::same_as<float> T>
void put(Message& message, T value) {
    message.putFloat(value);
}

inline void put(Message& message, std::string_view value) {
    message.putString(value);
}
inline void put(Message& message, WideStringView value) {
    message.putWideString(value);
}

inline void put(Message& message, const Uuid& value) {
    const auto text = uuidCharacters(value);
    message.putString({text.data(), text.size()});
}

template <typename T>
void put(Message& message, const std::optional<T>& value) {
    put(message, value.has_value());
    if (value) {
        put(message, *value);
    }
}

template <typename T>
void put(Message& message, const std::vector<T>& values) {
    message.putUInt16(static_cast<std::uint16_t>(values.size()));
    for (const T& value : values) {
        put(message, value);
    }
}

template <std::same_as<bool> T>
void get(Message& message, T& value) {
    value = message.getByte() != 0;
}

template <NumberField T>
void get(Message& message, T& value) {
    if constexpr (sizeof(T) == 1) {
        value = message.getByte();
    } else if constexpr (sizeof(T) == 2) {
        value = static_cast<T>(message.getUInt16());
    } else {
        value = static_cast<T>(static_cast<std::int32_t>(message.getUInt32()));
    }
}

template <typename T>
requires std::is_enum_v<T>
void get(Message& message, T& value) {
    std::underlying_type_t<T> number{};
    get(message, number);
    value = static_cast<T>(number);
}

template <std::same_as<float> T>
void get(Message& message, T& value) {
    value = message.getFloat();
}

inline void get(Message& message, std::string& value) {
    message.getString(value);
}
inline void get(Message& message, WideString& value) {
    message.getWideString(value);
}
inline void get(Message& message, Uuid& value) {
    value = parseUuid(message.getStringView());
}

template <typename T>
void get(Message& message, std::optional<T>& value) {
    bool present = false;
    get(message, present);
    if (!present) {
        value.reset();
        return;
    }
    get(message, value ? *value : value.emplace());
}

// Elements that are already in the list are read into, so that a list read again reuses the memory of its texts.
template <typename T>
void get(Message& message, std::vector<T>& values) {
    const std::uint16_t count = message.getUInt16();
    if (values.size() > count) {
        values.resize(count);
    }
    // The peer's count is believed only as far as bytes are there for it.
    values.reserve(std::min<std::uint32_t>(count, message.remaining()));
    for (std::uint16_t index = 0; index < count; ++index) {
        get(message, index < values.size() ? values[index] : values.emplace_back());
    }
}

template <typename T>
requires NumberField<T> || std::same_as<T, bool> || std::same_as<T, float>
[[nodiscard]] constexpr std::uint32_t encodedSize(const T&) {
    return sizeof(T) > 4 ? 4 : static_cast<std::uint32_t>(sizeof(T));
}

template <typename T>
requires std::is_enum_v<T>
[[nodiscard]] constexpr std::uint32_t encodedSize(const T& value) {
    return encodedSize(static_cast<std::underlying_type_t<T>>(value));
}

[[nodiscard]] inline std::uint32_t encodedSize(std::string_view value) {
    return static_cast<std::uint32_t>(value.size()) + 2;
}

[[nodiscard]] inline std::uint32_t encodedSize(WideStringView value) {
    return static_cast<std::uint32_t>(value.size()) * 2 + 2;
}

// Fewer than the 38 bytes that it will take; the sum is only a hint.
[[nodiscard]] inline std::uint32_t encodedSize(const Uuid&) {
    return 32;
}

template <typename T>
[[nodiscard]] std::uint32_t encodedSize(const std::optional<T>& value) {
    return value ? 1 + encodedSize(*value) : 1;
}

template <typename T>
[[nodiscard]] std::uint32_t encodedSize(const std::vector<T>& values) {
    std::uint32_t sum = 2;
    for (const T& value : values) {
        sum += encodedSize(value);
    }
    return sum;
}

} // namespace wire
