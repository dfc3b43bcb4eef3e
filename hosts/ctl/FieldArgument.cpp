#include "hosts/ctl/FieldArgument.h"

#include "hosts/ctl/Failure.h"

#include <algorithm>
#include <charconv>
#include <limits>
#include <string_view>

namespace ctl {
namespace {

constexpr auto kinds = "kinds are u8 u16 u32 i32 i64 f32 bool str8 str16 uuid none";
constexpr std::size_t longestText = 65535; // bytes; the count before a text has 16 bits

[[noreturn]] void refuse(const std::string& field, const std::string& why) {
    throw Failure(ExitStatus::usage, "The field \"" + field + "\" " + why);
}

std::int64_t number(const std::string& field, std::string_view text, std::int64_t lowest, std::int64_t highest) {
    std::int64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size() || value < lowest || value > highest) {
        refuse(field, "needs a number from " + std::to_string(lowest) + " to " + std::to_string(highest));
    }
    return value;
}

float real(const std::string& field, std::string_view text) {
    float value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc() || end != text.data() + text.size()) {
        refuse(field, "needs a number such as 7.5");
    }
    return value;
}

bool yesOrNo(const std::string& field, std::string_view text) {
    if (text == "true" || text == "1" || text == "yes") {
        return true;
    }
    if (text != "false" && text != "0" && text != "no") {
        refuse(field, "needs true or false");
    }
    return false;
}

bool isUuid(std::string_view text) {
    constexpr std::string_view form = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
    static constexpr std::string_view hexDigits = "0123456789ABCDEFabcdef";
    return std::ranges::equal(text, form, [](char character, char expected) {
        return expected == 'x' ? hexDigits.find(character) != std::string_view::npos : character == expected;
    });
}

wire::Uuid uuid(const std::string& field, const std::string& text) {
    if (!isUuid(text)) {
        refuse(field, "needs a uuid such as 01234567-89ab-cdef-0123-456789abcdef");
    }
    return wire::parseUuid(text);
}

template <class Text>
Text ofBearableLength(const std::string& field, Text text) {
    if (text.size() * sizeof(text[0]) > longestText) {
        refuse(field.substr(0, 40) + "...", "is longer than " + std::to_string(longestText) + " bytes");
    }
    return text;
}

} // namespace

protocol::FieldValue parseField(const std::string& text) {
    const auto colon = std::min(text.find(':'), text.size());
    const auto kind = text.substr(0, colon);
    const auto value = colon < text.size() ? text.substr(colon + 1) : std::string();
    const auto whole = [&]<class T>(T) {
        return static_cast<T>(number(text, value, std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
    };
    if (kind == "none" && value.empty()) {
        return {false}; // an optional field that is left out
    }
    if (colon == text.size()) {
        refuse(text, std::string("is not KIND:VALUE; ") + kinds);
    }
    if (kind == "u8") {
        return {whole(std::uint8_t{})};
    }
    if (kind == "u16") {
        return {whole(std::uint16_t{})};
    }
    if (kind == "u32") {
        return {static_cast<std::uint32_t>(
            number(text, value, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::uint32_t>::max()))};
    }
    if (kind == "i32") {
        return {whole(std::int32_t{})};
    }
    if (kind == "i64") {
        return {whole(std::int64_t{})};
    }
    if (kind == "f32") {
        return {real(text, value)};
    }
    if (kind == "bool") {
        return {yesOrNo(text, value)};
    }
    if (kind == "str8") {
        return {ofBearableLength(text, value)};
    }
    if (kind == "str16") {
        return {ofBearableLength(text, wire::toWide(value))};
    }
    if (kind == "uuid") {
        return {uuid(text, value)};
    }
    refuse(text, std::string("has an unknown kind; ") + kinds);
}

} // namespace ctl
