#include "tests/support/Bytes.h"

#include <stdexcept>

namespace support {

namespace {

int digitValue(char character) {
    constexpr std::string_view digits = "0123456789abcdef";
    const char lower = character >= 'A' && character <= 'F' ? static_cast<char>(character - 'A' + 'a') : character;
    const std::size_t value = digits.find(lower);
    if (value == std::string_view::npos) {
        throw std::invalid_argument(std::string("not a hexadecimal digit: ") + character);
    }
    return static_cast<int>(value);
}

void appendLittleEndian(Bytes& bytes, std::uint32_t value, int width) {
    for (int index = 0; index < width; ++index) {
        bytes.push_back(static_cast<std::uint8_t>((value >> (8 * index)) & 0xFF));
    }
}

} // namespace

Bytes hex(std::string_view text) {
    Bytes bytes;
    int high = -1;
    for (const char character : text) {
        if (character == ' ' || character == '\n') {
            continue;
        }
        const int value = digitValue(character);
        if (high < 0) {
            high = value;
        } else {
            bytes.push_back(static_cast<std::uint8_t>(high * 16 + value));
            high = -1;
        }
    }
    if (high >= 0) {
        throw std::invalid_argument("an odd number of hexadecimal digits");
    }
    return bytes;
}

std::string toHex(const Bytes& bytes) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string text;
    for (const std::uint8_t byte : bytes) {
        if (!text.empty()) {
            text += ' ';
        }
        text += digits[byte >> 4];
        text += digits[byte & 0x0F];
    }
    return text;
}

Bytes operator+(Bytes left, const Bytes& right) {
    left.insert(left.end(), right.begin(), right.end());
    return left;
}

Bytes dataMessage(const Bytes& fields) {
    Bytes message{1};
    appendLittleEndian(message, static_cast<std::uint32_t>(fields.size() + 5), 4);
    return std::move(message) + fields;
}

Bytes commandMessage(std::uint16_t opcode, std::uint16_t version) {
    Bytes message{0, 9, 0, 0, 0};
    appendLittleEndian(message, version, 2);
    appendLittleEndian(message, opcode, 2);
    return message;
}

Bytes frame(const std::vector<Bytes>& messages, std::optional<std::uint32_t> checksum,
            std::optional<std::uint32_t> size) {
    Bytes body;
    std::uint32_t sum = 0;
    for (const Bytes& message : messages) {
        body = std::move(body) + message;
    }
    for (const std::uint8_t byte : body) {
        sum += byte;
    }
    Bytes bytes{static_cast<std::uint8_t>(messages.size() & 0xFF)};
    appendLittleEndian(bytes, size.value_or(static_cast<std::uint32_t>(body.size())), 4);
    appendLittleEndian(bytes, checksum.value_or(sum), 4);
    return std::move(bytes) + body;
}

Bytes countedList(const std::vector<Bytes>& records) {
    Bytes count;
    appendLittleEndian(count, static_cast<std::uint32_t>(records.size()), 2);
    Bytes bytes = frame({dataMessage(count)});
    for (const Bytes& record : records) {
        bytes = std::move(bytes) + frame({dataMessage(record)});
    }
    return bytes;
}

} // namespace support
