#include "hosts/common/IniText.h"

#include <algorithm>
#include <charconv>
#include <cstdint>

namespace common {
namespace {

constexpr std::string_view blanks = " \t";
constexpr std::size_t hexDigits = 4;

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool isName(std::string_view name) {
    constexpr std::string_view others = "_-.";
    return !name.empty() && std::ranges::all_of(name, [&](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
               others.find(c) != std::string_view::npos;
    });
}

bool isHighSurrogate(char16_t unit) {
    return unit >= 0xD800 && unit <= 0xDBFF;
}

bool isLowSurrogate(char16_t unit) {
    return unit >= 0xDC00 && unit <= 0xDFFF;
}

void appendEscape(std::string& text, char16_t unit) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    text += "\\u";
    for (int shift = 12; shift >= 0; shift -= 4) {
        text += digits[static_cast<std::size_t>(unit >> shift) & 0xF];
    }
}

std::string escaped(std::u16string_view value) {
    std::string text;
    for (std::size_t i = 0; i < value.size(); ++i) {
        const char16_t unit = value[i];
        const bool blankAtEnd = unit == u' ' && (i == 0 || i + 1 == value.size());
        if (unit == u'\\') {
            text += "\\\\";
        } else if (isHighSurrogate(unit) && i + 1 < value.size() && isLowSurrogate(value[i + 1])) {
            text += wire::toUtf8(value.substr(i++, 2));
        } else if (unit < u' ' || unit == 0x7F || blankAtEnd || isHighSurrogate(unit) || isLowSurrogate(unit)) {
            appendEscape(text, unit);
        } else {
            text += wire::toUtf8({&unit, 1});
        }
    }
    return text;
}

// Reads the escape whose backslash is at `at`, and moves `at` to the escape's last character. Empty when it is not an
// escape.
std::optional<char16_t> readEscape(std::string_view text, std::size_t& at) {
    if (text.substr(at, 2) == "\\\\") {
        ++at;
        return u'\\';
    }
    const std::string_view digits = text.substr(std::min(at + 2, text.size()), hexDigits);
    std::uint16_t unit = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), unit, 16);
    if (text.substr(at, 2) != "\\u" || digits.size() != hexDigits || error != std::errc{} ||
        end != digits.data() + digits.size()) {
        return std::nullopt;
    }
    at += 1 + hexDigits;
    return static_cast<char16_t>(unit);
}

std::optional<wire::WideString> unescaped(std::string_view text) {
    wire::WideString value;
    std::size_t plain = 0;
    for (std::size_t at = text.find('\\'); at != std::string_view::npos; at = text.find('\\', plain)) {
        value += wire::toWide(text.substr(plain, at - plain));
        const auto unit = readEscape(text, at);
        if (!unit) {
            return std::nullopt;
        }
        value += *unit;
        plain = at + 1;
    }
    return value + wire::toWide(text.substr(plain));
}

bool isText(std::string_view text) {
    const bool control =
        std::ranges::any_of(text, [](char c) { return static_cast<unsigned char>(c) < ' ' && c != '\t'; });
    return !control && wire::toUtf8(wire::toWide(text)) == text;
}

} // namespace

std::optional<IniText> IniText::parse(std::string_view text) {
    IniText result;
    while (!text.empty()) {
        const auto end = std::min(text.find('\n'), text.size());
        std::string_view whole = text.substr(0, end);
        text.remove_prefix(std::min(end + 1, text.size()));
        if (whole.ends_with('\r')) {
            whole.remove_suffix(1);
        }
        Line line{std::string(whole), {}, {}};
        const std::string_view content = trimmed(whole);
        const bool plain = content.empty() || content.starts_with(';') || content.starts_with('#') ||
                           (content.starts_with('[') && content.ends_with(']'));
        if (!isText(whole)) {
            return std::nullopt;
        }
        if (!plain) {
            const auto equals = content.find('=');
            const auto name = trimmed(content.substr(0, equals));
            auto value =
                equals == std::string_view::npos ? std::nullopt : unescaped(trimmed(content.substr(equals + 1)));
            if (!value || !isName(name)) {
                return std::nullopt;
            }
            line.name = name;
            line.value = std::move(*value);
        }
        result.lines_.push_back(std::move(line));
    }
    return result;
}

std::string IniText::text() const {
    std::string all;
    for (const Line& line : lines_) {
        all += line.text;
        all += '\n';
    }
    return all;
}

std::optional<wire::WideString> IniText::value(std::string_view name) const {
    const auto found = name.empty() ? lines_.end() : std::ranges::find(lines_, name, &Line::name);
    return found == lines_.end() ? std::nullopt : std::optional(found->value);
}

bool IniText::setValue(std::string_view name, const wire::WideString& value) {
    if (!isName(name)) {
        return false;
    }
    Line line{std::string(name) + "=" + escaped(value), std::string(name), value};
    const auto found = std::ranges::find(lines_, name, &Line::name);
    if (found != lines_.end()) {
        *found = std::move(line);
    } else {
        lines_.push_back(std::move(line));
    }
    return true;
}

} // namespace common
