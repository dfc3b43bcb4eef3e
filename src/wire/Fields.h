#pragma once

#include "wire/FieldTraits.h"
#include "wire/Message.h"

#include <cstdint>
#include <string_view>

// The fields of a message by type: put appends a value, get reads into a reference (and reuses its memory), encodedSize
// is what a value adds to the hint of beginMessage. FieldTraits lists the types.
namespace wire {

// The end of a message under construction.
struct MessageSink {
    void number(std::uint8_t value) { message.putByte(value); }
    void number(std::uint16_t value) { message.putUInt16(value); }
    void number(std::uint32_t value) { message.putUInt32(value); }
    void number(std::int32_t value) { message.putUInt32(static_cast<std::uint32_t>(value)); }
    void number(float value) { message.putFloat(value); }
    void text(std::string_view value) { message.putString(value); }
    void text(WideStringView value) { message.putWideString(value); }
    void uuid(const Uuid& value) {
        const auto characters = uuidCharacters(value);
        message.putString({characters.data(), characters.size()});
    }

    Message& message;
};

// The unread rest of a loaded message.
struct MessageSource {
    template <typename N>
    [[nodiscard]] N number() {
        if constexpr (std::is_same_v<N, float>) {
            return message.getFloat();
        } else if constexpr (sizeof(N) == 1) {
            return message.getByte();
        } else if constexpr (sizeof(N) == 2) {
            return message.getUInt16();
        } else {
            return static_cast<N>(message.getUInt32());
        }
    }
    [[nodiscard]] std::string_view text() { return message.getStringView(); }
    void text(WideString& value) { message.getWideString(value); }
    [[nodiscard]] Uuid uuid() { return parseUuid(message.getStringView()); }
    [[nodiscard]] std::size_t remaining() const { return message.remaining(); }

    Message& message;
};

template <typename T>
void put(Message& message, const T& value) {
    MessageSink sink{message};
    FieldTraits<T>::put(sink, value);
}

template <typename T>
void get(Message& message, T& value) {
    MessageSource source{message};
    FieldTraits<T>::get(source, value);
}

// A uuid counts as fewer bytes than it takes; the sum is only a hint.
template <typename T>
[[nodiscard]] std::uint32_t encodedSize(const T& value) {
    SizeSink<32> sink;
    FieldTraits<T>::put(sink, value);
    return static_cast<std::uint32_t>(sink.size);
}

} // namespace wire
