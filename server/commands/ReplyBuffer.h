#pragma once

#include "protocol/WireOrder.h"
#include "server/store/Query.h"
#include "wire/ByteBuffer.h"
#include "wire/Frame.h"

namespace server {

// A sink of fields: builds the bytes of the frames sent to a console, each with one Data message. Wide text is sent as
// the stored units.
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
        wire::FieldTraits<Value>::put(*this, value);
    }

    // What a sink of fields takes.
    template <class Number>
    void number(Number value) {
        bytes_.appendValue(value);
    }
    void text(std::string_view value) { putCounted(value.data(), value.size()); }
    void text(wire::WideStringView value) { putCounted(value.data(), value.size() * 2); }
    void uuid(const wire::Uuid& value) {
        const auto characters = wire::uuidCharacters(value);
        putCounted(characters.data(), characters.size());
    }

    // Puts the current row as a record of this type, its columns in the order of the fields.
    template <protocol::Record R>
    void putRow(const Rows& rows) {
        int column = 0;
        protocol::detail::eachField<R>(
            [&]<class Value>(const protocol::Field<R, Value>&) { putColumn<Value>(rows, column++); });
    }

private:
    template <class Value>
    void putColumn(const Rows& rows, int column) {
        using Traits = wire::FieldTraits<Value>;
        if constexpr (Traits::kind == wire::FieldKind::optional) {
            put(!rows.isNull(column));
            if (!rows.isNull(column)) {
                putColumn<typename Traits::Element>(rows, column);
            }
        } else if constexpr (Traits::kind == wire::FieldKind::str8 || Traits::kind == wire::FieldKind::uuid) {
            text(rows.text(column));
        } else if constexpr (Traits::kind == wire::FieldKind::str16) {
            const auto units = rows.bytes(column);
            putCounted(units.data(), units.size());
        } else if constexpr (Traits::kind == wire::FieldKind::bool8) {
            put(rows.number(column) != 0);
        } else if constexpr (Traits::kind == wire::FieldKind::f32) {
            put(static_cast<float>(rows.real(column)));
        } else {
            static_assert(
                requires { typename Traits::Number; }, "a column holds one value");
            number(static_cast<typename Traits::Number>(rows.number(column)));
        }
    }

    void putCounted(const void* bytes, std::size_t size) {
        bytes_.appendValue(static_cast<std::uint16_t>(size));
        bytes_.append(bytes, size);
    }

    wire::ByteBuffer bytes_;
    std::uint32_t frameStart_ = 0;
};

// The most bytes that a console receives in the data of one frame.
constexpr std::uint32_t largestReceivableFrame = 65535;

// The bytes that a record takes as the only message of a frame.
template <protocol::Record R>
[[nodiscard]] std::size_t frameDataSize(const R& record) {
    return wire::Message::headerSize + wire::plainSize(record);
}

} // namespace server
