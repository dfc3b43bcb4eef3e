#pragma once

#include "protocol/WireOrder.h"
#include "server/store/Query.h"
#include "wire/ByteBuffer.h"
#include "wire/Frame.h"

namespace server {

// What goes out to a console, as the finished bytes of frames that hold one Data message each. Wide text goes out as
// the units that are stored.
class ReplyBuffer {
public:
    [[nodiscard]] std::span<const std::uint8_t> bytes() const { return {bytes_.data(), bytes_.size()}; }
    [[nodiscard]] std::size_t size() const { return bytes_.size(); }
    void clear() { bytes_.clear(); }
    void append(std::span<const std::uint8_t> bytes) { bytes_.append(bytes.data(), bytes.size()); }

    // Fields go between these two.
    void beginFrame();
    void endFrame();

    template <protocol::Record R>
    void putFrame(const R& record) {
        beginFrame();
        put(record);
        endFrame();
    }

    // The u16 message that announces the records of a list.
    void putCountFrame(std::uint16_t count);

    template <class Value>
    void put(const Value& value) {
        if constexpr (protocol::Record<Value>) {
            protocol::forEachField(value, [&](std::string_view, const auto& member) { put(member); });
        } else if constexpr (std::same_as<Value, std::string>) {
            putCounted(value.data(), value.size());
        } else if constexpr (std::same_as<Value, wire::WideString>) {
            putCounted(value.data(), value.size() * 2);
        } else if constexpr (std::same_as<Value, bool>) {
            bytes_.appendValue(static_cast<std::uint8_t>(value ? 1 : 0));
        } else if constexpr (std::same_as<Value, wire::Uuid>) {
            const auto characters = wire::uuidCharacters(value);
            putCounted(characters.data(), characters.size());
        } else if constexpr (protocol::detail::isOptional<Value>) {
            put(value.has_value());
            if (value)
                put(*value);
        } else if constexpr (protocol::detail::isList<Value>) {
            put(static_cast<std::uint16_t>(value.size()));
            for (const auto& element : value)
                put(element);
        } else if constexpr (std::same_as<Value, std::int64_t>) {
            bytes_.appendValue(static_cast<std::uint32_t>(value)); // the wire carries the low 32 bits
        } else {
            static_assert(std::is_arithmetic_v<Value>);
            bytes_.appendValue(value);
        }
    }

    // The present row as a record of this type, its columns in the order of the fields.
    template <protocol::Record R>
    void putRow(const Rows& rows) {
        int column = 0;
        protocol::detail::eachField<R>(
            [&]<class Value>(const protocol::Field<R, Value>&) { putColumn<Value>(rows, column++); });
    }

private:
    template <class Value>
    void putColumn(const Rows& rows, int column) {
        if constexpr (protocol::detail::isOptional<Value>) {
            put(!rows.isNull(column));
            if (!rows.isNull(column))
                putColumn<typename Value::value_type>(rows, column);
        } else if constexpr (std::same_as<Value, std::string> || std::same_as<Value, wire::Uuid>) {
            const auto text = rows.text(column);
            putCounted(text.data(), text.size());
        } else if constexpr (std::same_as<Value, wire::WideString>) {
            const auto text = rows.bytes(column);
            putCounted(text.data(), text.size());
        } else if constexpr (std::same_as<Value, bool>) {
            bytes_.appendValue(static_cast<std::uint8_t>(rows.number(column) != 0 ? 1 : 0));
        } else if constexpr (std::same_as<Value, float>) {
            bytes_.appendValue(static_cast<float>(rows.real(column)));
        } else if constexpr (std::same_as<Value, std::int64_t>) {
            put(rows.number(column));
        } else {
            static_assert(std::integral<Value>, "a column holds one value");
            bytes_.appendValue(static_cast<Value>(rows.number(column)));
        }
    }

    void putCounted(const void* bytes, std::size_t size) {
        bytes_.appendValue(static_cast<std::uint16_t>(size));
        bytes_.append(bytes, size);
    }

    wire::ByteBuffer bytes_;
    std::uint32_t frameStart_ = 0;
};

// A console receives at most so many bytes in the data of one frame.
constexpr std::uint32_t largestReceivableFrame = 65535;

// The bytes that a record takes as the only message of a frame.
template <protocol::Record R>
[[nodiscard]] std::size_t frameDataSize(const R& record) {
    return wire::Message::headerSize + std::size_t{protocol::encodedSize(record)};
}

} // namespace server
