#include "wire/Message.h"

#include "wire/UTFConverter.h"

#include <array>
#include <functional>
#include <numeric>

namespace wire {

namespace {

using Units = std::uint16_t __attribute__((vector_size(16)));
using FewUnits = std::uint16_t __attribute__((vector_size(8)));

constexpr bool isMark(char16_t unit) {
    return unit == 0xFFFE || unit == 0xFEFF;
}
constexpr bool isPlain(char16_t unit) {
    return unit != 0 && (unit & 0xF800) != 0xD800;
}

// Copies as many units as the vector holds; the result is nonzero where a unit is zero or a surrogate.
template <typename Vector>
Vector copyVector(std::uint8_t* to, const std::uint8_t* from) {
    Vector units;
    std::memcpy(&units, from, sizeof units);
    std::memcpy(to, &units, sizeof units);
    return reinterpret_cast<Vector>(units == Vector{}) |
           reinterpret_cast<Vector>((units & 0xF800) == (Vector{} + std::uint16_t{0xD800}));
}

template <typename Vector>
bool isZero(const Vector& vector) {
    std::array<std::uint64_t, sizeof vector / sizeof(std::uint64_t)> words;
    std::memcpy(words.data(), &vector, sizeof vector);
    return std::accumulate(words.begin(), words.end(), std::uint64_t{0}, std::bit_or<>()) == 0;
}

// Copies with the last vector overlapping the one before it, so that no single units remain.
template <typename Vector>
bool copyVectors(std::uint8_t* to, const std::uint8_t* from, std::size_t length) {
    constexpr std::size_t step = sizeof(Vector);
    Vector strange{};
    for (std::size_t offset = 0; offset + step < length; offset += step) {
        strange |= copyVector<Vector>(to + offset, from + offset);
    }
    return isZero(strange | copyVector<Vector>(to + length - step, from + length - step));
}

// Copies UTF-16 text of so many bytes. True when the converter would return it unchanged, as for nearly all text: no
// zero, no surrogate, no leading byte order mark. Otherwise the copy is useless.
bool copyPlain(std::uint8_t* to, const std::uint8_t* from, std::size_t length) {
    if (length == 0) {
        return true;
    }
    char16_t unit = 0;
    std::memcpy(&unit, from, sizeof unit);
    if (isMark(unit)) {
        return false;
    }
    if (length >= sizeof(Units)) {
        return copyVectors<Units>(to, from, length);
    }
    if (length >= sizeof(FewUnits)) {
        return copyVectors<FewUnits>(to, from, length);
    }
    bool plain = true;
    for (std::size_t offset = 0; offset < length; offset += sizeof unit) {
        std::memcpy(&unit, from + offset, sizeof unit);
        std::memcpy(to + offset, &unit, sizeof unit);
        plain = plain && isPlain(unit);
    }
    return plain;
}

} // namespace

void Message::beginMessage(std::uint32_t payloadSizeHint) {
    const std::uint64_t hintedSize = std::uint64_t{payloadSizeHint} + headerSize;
    buffer_.clear();
    buffer_.reserve(hintedSize);
    rewound_ = false;
    buffer_.appendValue(std::uint8_t{0});
    buffer_.appendValue(static_cast<std::uint32_t>(hintedSize));
}

void Message::rewind() {
    while (buffer_.size() < headerSize) {
        buffer_.appendValue(std::uint8_t{0});
    }
    const std::uint32_t length = buffer_.size();
    buffer_.data()[0] = static_cast<std::uint8_t>(kind_);
    std::memcpy(buffer_.data() + 1, &length, sizeof length);
    rewound_ = true;
}

void Message::loadMessage(const std::uint8_t* data, std::uint32_t available) {
    if (data == nullptr) {
        return;
    }
    if (available < headerSize) {
        throw "Reading out of scope";
    }
    buffer_.clear();
    buffer_.append(data, headerSize);
    cursor_ = headerSize;
    kind_ = static_cast<MessageKind>(data[0]);
    std::uint32_t length = 0;
    std::memcpy(&length, data + 1, sizeof length);
    if (length > available || length < headerSize) {
        throw "Reading out of scope";
    }
    buffer_.reserve(length);
    buffer_.append(data + headerSize, length - headerSize);
    rewound_ = true;
}

void Message::putWideString(WideStringView value) {
    if (rewound_) {
        return;
    }
    // Useless in a message under construction, but the cursor must still be moved here.
    cursor_ = buffer_.size();
    const std::size_t plainLength = value.size() * sizeof(char16_t);
    const auto plainCount = static_cast<std::uint16_t>(plainLength);
    std::uint8_t* const start = buffer_.extend(sizeof plainCount + plainLength);
    std::memcpy(start, &plainCount, sizeof plainCount);
    if (copyPlain(start + sizeof plainCount, reinterpret_cast<const std::uint8_t*>(value.data()), plainLength)) {
        return;
    }
    buffer_.cut(cursor_);
    const unicode::UTFConverter converter(value);
    const auto units = converter.toUTF16(false, unicode::littleEndian);
    const std::uint32_t length = converter.byteLength(false);
    buffer_.appendValue(static_cast<std::uint16_t>(length));
    buffer_.append(units.get(), length);
}

void Message::getWideString(WideString& value) {
    const std::span<const std::uint8_t> text = takeCounted();
    // The last byte of an odd count is skipped.
    const std::size_t unitCount = text.size() / sizeof(char16_t);
    value.resize(unitCount);
    if (copyPlain(reinterpret_cast<std::uint8_t*>(value.data()), text.data(), unitCount * sizeof(char16_t))) {
        return;
    }
    const auto units = std::make_unique<char16_t[]>(unitCount + 1);
    std::memcpy(units.get(), text.data(), unitCount * sizeof(char16_t));
    value = unicode::UTFConverter(units.get(), unicode::littleEndian).toWideString();
}

void Message::readingOutsideScope() {
    throw "Reading outside scope";
}

std::unique_ptr<Message> makeCommandMessage(std::uint16_t opcode, std::uint16_t version) {
    auto message = std::make_unique<Message>();
    message->beginMessage(sizeof version + sizeof opcode);
    message->setKind(MessageKind::Command);
    message->putUInt16(version);
    message->putUInt16(opcode);
    message->rewind();
    return message;
}

} // namespace wire
