#include "wire/Text.h"

#include <cstdint>

namespace wire {

namespace {

constexpr char32_t replacement = 0xFFFD;

constexpr bool isSurrogate(char32_t value) {
    return value >= 0xD800 && value <= 0xDFFF;
}

void appendUtf8(std::string& text, char32_t codePoint) {
    const auto byte = [](char32_t value) { return static_cast<char>(static_cast<std::uint8_t>(value)); };
    const auto trail = [&](int shift) { text += byte(0x80 | ((codePoint >> shift) & 0x3F)); };
    if (codePoint < 0x80) {
        text += byte(codePoint);
    } else if (codePoint < 0x800) {
        text += byte(0xC0 | (codePoint >> 6));
        trail(0);
    } else if (codePoint < 0x10000) {
        text += byte(0xE0 | (codePoint >> 12));
        trail(6);
        trail(0);
    } else {
        text += byte(0xF0 | (codePoint >> 18));
        trail(12);
        trail(6);
        trail(0);
    }
}

void appendWide(WideString& text, char32_t codePoint) {
    if (codePoint < 0x10000) {
        text += static_cast<char16_t>(codePoint);
    } else {
        text += static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10));
        text += static_cast<char16_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
    }
}

// What the first byte of a sequence announces: how many bytes follow, and the smallest value that needs so many.
struct Lead {
    std::size_t trailing = 0;
    char32_t bits = 0;
    char32_t smallest = 0;
};

Lead leadOf(std::uint8_t byte) {
    if (byte >= 0xC2 && byte <= 0xDF) {
        return {1, char32_t{byte} & 0x1F, 0x80};
    }
    if (byte >= 0xE0 && byte <= 0xEF) {
        return {2, char32_t{byte} & 0x0F, 0x800};
    }
    if (byte >= 0xF0 && byte <= 0xF4) {
        return {3, char32_t{byte} & 0x07, 0x10000};
    }
    return {0, replacement, 0};
}

// Reads one code point from text at index and advances index; one U+FFFD for each malformed start of a sequence.
char32_t takeCodePoint(std::string_view text, std::size_t& index) {
    const auto first = static_cast<std::uint8_t>(text[index++]);
    if (first < 0x80) {
        return first;
    }
    const Lead lead = leadOf(first);
    char32_t codePoint = lead.bits;
    for (std::size_t taken = 0; taken < lead.trailing; ++taken) {
        if (index == text.size() || (static_cast<std::uint8_t>(text[index]) & 0xC0) != 0x80) {
            return replacement;
        }
        codePoint = (codePoint << 6) | (static_cast<std::uint8_t>(text[index++]) & 0x3F);
    }
    return codePoint < lead.smallest || codePoint > 0x10FFFF || isSurrogate(codePoint) ? replacement : codePoint;
}

} // namespace

std::string toUtf8(WideStringView text) {
    std::string utf8;
    utf8.reserve(text.size());
    for (std::size_t index = 0; index < text.size(); ++index) {
        const char16_t unit = text[index];
        if (!isSurrogate(unit)) {
            appendUtf8(utf8, unit);
            continue;
        }
        const char16_t low = index + 1 < text.size() ? text[index + 1] : char16_t{0};
        if (unit <= 0xDBFF && low >= 0xDC00 && low <= 0xDFFF) {
            appendUtf8(utf8, 0x10000 + ((char32_t{unit} - 0xD800) << 10) + (low - 0xDC00));
            ++index;
        } else {
            appendUtf8(utf8, replacement);
        }
    }
    return utf8;
}

WideString toWide(std::string_view utf8) {
    WideString text;
    text.reserve(utf8.size());
    for (std::size_t index = 0; index < utf8.size();) {
        appendWide(text, takeCodePoint(utf8, index));
    }
    return text;
}

} // namespace wire
