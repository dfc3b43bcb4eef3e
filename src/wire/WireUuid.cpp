#include "wire/WireUuid.h"

#include "wire/TimeUuid.h"

#include <boost/uuid/random_generator.hpp>
#include <boost/uuid/string_generator.hpp>

#include <algorithm>
#include <cstdint>
#include <stdexcept>

namespace wire {

namespace {

// The value of a hexadecimal digit, 16 for anything else.
constexpr std::uint8_t digitValue(char character) {
    if (character >= '0' && character <= '9') {
        return static_cast<std::uint8_t>(character - '0');
    }
    if (character >= 'a' && character <= 'f') {
        return static_cast<std::uint8_t>(character - 'a' + 10);
    }
    if (character >= 'A' && character <= 'F') {
        return static_cast<std::uint8_t>(character - 'A' + 10);
    }
    return 16;
}

constexpr auto digitValues = [] {
    std::array<std::uint8_t, 256> values{};
    for (std::size_t index = 0; index < values.size(); ++index) {
        values[index] = digitValue(static_cast<char>(index));
    }
    return values;
}();

// The positions of the two digits of each byte in the 36 characters.
constexpr std::array<std::uint8_t, 16> bytePositions{0, 2, 4, 6, 9, 11, 14, 16, 19, 21, 24, 26, 28, 30, 32, 34};

// The form that nearly every id has: 36 characters, dashes included. False leaves the text to the general parser.
bool parseDashed(std::string_view text, Uuid& uuid) {
    if (text.size() != 36 || text[8] != '-' || text[13] != '-' || text[18] != '-' || text[23] != '-') {
        return false;
    }
    unsigned bad = 0;
    for (std::size_t index = 0; index < bytePositions.size(); ++index) {
        const std::size_t position = bytePositions[index];
        const unsigned high = digitValues[static_cast<std::uint8_t>(text[position])];
        const unsigned low = digitValues[static_cast<std::uint8_t>(text[position + 1])];
        bad |= high | low;
        uuid.data[index] = static_cast<std::uint8_t>((high << 4) | low);
    }
    return (bad & 16) == 0;
}

} // namespace

std::string createUuid() {
    std::string text = timeUuid();
    std::transform(text.begin(), text.end(), text.begin(), [](char character) {
        return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a') : character;
    });
    if (text.empty()) {
        throw std::runtime_error("Failed to create uuid");
    }
    return text;
}

Uuid randomUuid() {
    thread_local boost::uuids::random_generator generator;
    return generator();
}

std::array<char, 36> uuidCharacters(const Uuid& uuid) {
    constexpr std::string_view digits = "0123456789abcdef";
    std::array<char, 36> text{};
    text[8] = text[13] = text[18] = text[23] = '-';
    for (std::size_t index = 0; index < bytePositions.size(); ++index) {
        text[bytePositions[index]] = digits[uuid.data[index] >> 4];
        text[bytePositions[index] + std::size_t{1}] = digits[uuid.data[index] & 0x0F];
    }
    return text;
}

std::string toText(const Uuid& uuid) {
    const auto text = uuidCharacters(uuid);
    return {text.data(), text.size()};
}

Uuid parseUuid(std::string_view text) {
    Uuid uuid;
    if (parseDashed(text, uuid)) {
        return uuid;
    }
    return boost::uuids::string_generator()(text.begin(), text.end());
}

} // namespace wire
