#pragma once

#include "protocol/WireOrder.h"
#include "tests/support/Bytes.h"

#include <cstdint>
#include <string>

namespace protocol {

using support::operator+;

// The whole message of a record, as text.
template <Record R>
std::string hexOf(const R& record) {
    const auto message = makeDataMessage(record);
    return support::toHex({message->bytes().begin(), message->bytes().end()});
}

// Hex text in the form that toHex returns.
inline std::string tidy(const std::string& hexText) {
    return support::toHex(support::hex(hexText));
}

inline wire::Message loaded(const support::Bytes& fields) {
    const support::Bytes bytes = support::dataMessage(fields);
    wire::Message message;
    message.loadMessage(bytes.data(), static_cast<std::uint32_t>(bytes.size()));
    return message;
}

// The record of a message with these fields.
template <Record R>
R fromFields(const support::Bytes& fields) {
    wire::Message message = loaded(fields);
    return read<R>(message);
}

template <Record R>
R fromFields(const std::string& hexText) {
    return fromFields<R>(support::hex(hexText));
}

// The given number of bytes of one value.
inline support::Bytes repeated(std::size_t count, const std::string& hexText) {
    const support::Bytes unit = support::hex(hexText);
    support::Bytes bytes;
    for (std::size_t index = 0; index < count; ++index) {
        bytes.insert(bytes.end(), unit.begin(), unit.end());
    }
    return bytes;
}

} // namespace protocol
