#pragma once

#include "wire/ByteBuffer.h"
#include "wire/Text.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace wire {

// The wire is little-endian, and nothing here swaps bytes.
static_assert(std::endian::native == std::endian::little);

enum class MessageKind : std::uint8_t {
    Command = 0, // opens a command: version and opcode, nothing else
    Data = 1,    // the fields of a request or of a reply
};

// The unit of exchange with the server: a header, then fields identified only by their order.
//
//     message = kind:u8 length:u32 field*        length counts the whole message, its header included
//     command = 00 09 00 00 00 version:u16 opcode:u16
//     str8    = count:u16 byte*                  count in bytes
//     str16   = count:u16 unit*                  UTF-16LE; count in bytes, not in characters
//
// A message is written in order, then rewound, which freezes it: later writes are ignored without an error. A loaded
// message is read in order. Reading past the end throws the plain string "Reading outside scope" and leaves the cursor
// where it was. Used by one thread at a time.
class Message {
public:
    static constexpr std::uint32_t headerSize = 5;

    Message() = default;

    // Empties the message and makes room for a payload of the hinted size, which need not be right. Throws
    // std::length_error "vector<T> too long" when the hint is beyond what can be reserved.
    void beginMessage(std::uint32_t payloadSizeHint);

    // Writes the actual length and the kind into the header, and freezes the message. A second call changes nothing.
    void rewind();

    // Cuts one message from the front of received bytes; what follows it stays unread. Null data leaves the message as
    // it is. Throws the plain string "Reading out of scope" when the message isn't complete.
    void loadMessage(const std::uint8_t* data, std::uint32_t available);

    [[nodiscard]] MessageKind kind() const { return kind_; }
    void setKind(MessageKind kind) { kind_ = kind; }
    [[nodiscard]] bool rewound() const { return rewound_; }
    [[nodiscard]] std::uint32_t cursor() const { return cursor_; }
    [[nodiscard]] std::uint32_t size() const { return buffer_.size(); }
    [[nodiscard]] std::uint32_t capacity() const { return buffer_.capacity(); }

    // The whole message, header included.
    [[nodiscard]] std::span<const std::uint8_t> bytes() const { return {buffer_.data(), buffer_.size()}; }

    // Bytes not yet read.
    [[nodiscard]] std::uint32_t remaining() const { return size() > cursor_ ? size() - cursor_ : 0; }

    // Room for so many more bytes at the end of a message under construction, for the caller to fill at once; empty
    // once the message is rewound.
    [[nodiscard]] std::span<std::uint8_t> extend(std::size_t count) {
        return rewound_ ? std::span<std::uint8_t>() : std::span(buffer_.extend(count), count);
    }

    void putByte(std::uint8_t value) { putValue(value); }
    void putUInt16(std::uint16_t value) { putValue(value); }
    void putUInt32(std::uint32_t value) { putValue(value); }
    void putFloat(float value) { putValue(value); }

    // The count is the low 16 bits of the length, but all bytes are written: 65,536 bytes make the message unreadable.
    void putString(std::string_view value) {
        if (!rewound_) {
            const auto count = static_cast<std::uint16_t>(value.size());
            std::uint8_t* const start = buffer_.extend(sizeof count + value.size());
            std::memcpy(start, &count, sizeof count);
            value.copy(reinterpret_cast<char*>(start) + sizeof count, value.size());
        }
    }

    // Converts as unicode::UTFConverter does; the same rule about the count holds.
    void putWideString(WideStringView value);

    [[nodiscard]] std::uint8_t getByte() { return getValue<std::uint8_t>(); }
    [[nodiscard]] std::uint16_t getUInt16() { return getValue<std::uint16_t>(); }
    [[nodiscard]] std::uint32_t getUInt32() { return getValue<std::uint32_t>(); }
    [[nodiscard]] float getFloat() { return getValue<float>(); }

    // The bytes of a str8, without copying them; valid until the message changes.
    [[nodiscard]] std::string_view getStringView() {
        const std::span<const std::uint8_t> text = takeCounted();
        return {reinterpret_cast<const char*>(text.data()), text.size()};
    }

    [[nodiscard]] std::string getString() { return std::string(getStringView()); }
    void getString(std::string& value) { value = getStringView(); }

    [[nodiscard]] WideString getWideString() {
        WideString value;
        getWideString(value);
        return value;
    }
    void getWideString(WideString& value);

private:
    template <typename T>
    void putValue(T value) {
        if (!rewound_) {
            buffer_.appendValue(value);
        }
    }

    template <typename T>
    T getValue() {
        if (remaining() < sizeof(T)) {
            readingOutsideScope();
        }
        T value;
        std::memcpy(&value, buffer_.data() + cursor_, sizeof value);
        cursor_ += static_cast<std::uint32_t>(sizeof value);
        return value;
    }

    // A u16 count and so many bytes.
    std::span<const std::uint8_t> takeCounted() {
        std::uint16_t count = 0;
        if (remaining() < sizeof count) {
            readingOutsideScope();
        }
        const std::uint8_t* const start = buffer_.data() + cursor_;
        std::memcpy(&count, start, sizeof count);
        if (remaining() - sizeof count < count) {
            readingOutsideScope();
        }
        cursor_ += static_cast<std::uint32_t>(sizeof count) + count;
        return {start + sizeof count, count};
    }

    [[noreturn]] static void readingOutsideScope();

    ByteBuffer buffer_;
    std::uint32_t cursor_ = 0;
    MessageKind kind_ = MessageKind::Command;
    bool rewound_ = false;
};

// A finished Command message of 9 bytes. The version goes out before the opcode, in the opposite order of the
// arguments.
[[nodiscard]] std::unique_ptr<Message> makeCommandMessage(std::uint16_t opcode, std::uint16_t version);

} // namespace wire
