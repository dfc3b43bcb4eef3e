#include "wire/Message.h"

#include "wire/UTFConverter.h"

#include <array>

namespace wire {

namespace {

constexpr std::uint64_t lanes = 0x0001000100010001;

constexpr std::uint64_t zeroLanes(std::uint64_t units) {
    return (units - lanes) & ~units & (lanes << 15);
}

// True for four units (or fewer, filled up with blanks) of which none is 0 or a surrogate.
constexpr bool isPlain(std::uint64_t units) {
    return (zeroLanes(units) | zeroLanes((units & (lanes * 0xF800)) ^ (lanes * 0xD800))) == 0;
}

constexpr bool isMark(char16_t unit) {
    return unit == 0xFFFE || unit == 0xFEFF;
}

// True for text that the converter would give back unit by unit: no zero, no surrogate, no leading mark.
bool isPlain(const std::uint8_t* bytes, std::size_t unitCount) {
    if (unitCount == 0) {
        return true;
    }
    char16_t first = 0;
    std::memcpy(&first, bytes, sizeof first);
    if (isMark(first)) {
        return false;
    }
    constexpr std::size_t step = sizeof(std::uint64_t);
    const std::size_t length = unitCount * sizeof(char16_t);
    std::size_t offset = 0;
    for (; offset + step <= length; offset += step) {
        std::uint64_t units = 0;
        std::memcpy(&units, bytes + offset, step);
        if (!isPlain(units)) {
            return false;
        }
    }
    std::uint64_t rest = lanes * u' ';
    std::memcpy(&rest, bytes + offset, length - offset);
    return isPlain(rest);
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
    // Of no use in a message under construction, but the cursor has always been moved here and stays so.
    cursor_ = buffer_.size();
    if (isPlain(reinterpret_cast<const std::uint8_t*>(value.data()), value.size())) {
        const std::size_t length = value.size() * sizeof(char16_t);
        buffer_.appendValue(static_cast<std::uint16_t>(length));
        buffer_.append(value.data(), length);
        return;
    }
    const unicode::UTFConverter converter(value);
    const auto units = converter.toUTF16(false, unicode::littleEndian);
    const std::uint32_t length = converter.byteLength(false);
    buffer_.appendValue(static_cast<std::uint16_t>(length));
    buffer_.append(units.get(), length);
}

void Message::getWideString(WideString& value) {
    const std::span<const std::uint8_t> text = takeCounted();
    // The last byte of an odd count is passed over.
    const std::size_t unitCount = text.size() / sizeof(char16_t);
    if (isPlain(text.data(), unitCount)) {
        value.resize(unitCount);
        std::memcpy(value.data(), text.data(), unitCount * sizeof(char16_t));
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
