#include "server/inventory/Address.h"

#include <arpa/inet.h>

#include <algorithm>
#include <string>

namespace server {

namespace {

constexpr std::string_view blanks = " \t\r\n";
constexpr std::size_t version4At = 12; // after ten bytes of zeros and two bytes of ones
constexpr std::uint8_t hostMark = 0xFF;

std::string trimmed(std::string_view text) {
    const auto from = text.find_first_not_of(blanks);
    if (from == std::string_view::npos) {
        return {};
    }
    return std::string(text.substr(from, text.find_last_not_of(blanks) - from + 1));
}

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter + ('a' - 'A')) : letter;
}

} // namespace

std::optional<Address> parseAddress(std::string_view text) {
    const auto word = trimmed(text);
    if (word.find('\0') != std::string::npos) {
        return std::nullopt;
    }
    Address address{};
    if (::inet_pton(AF_INET6, word.c_str(), address.data()) == 1) {
        return address;
    }
    address[version4At - 2] = address[version4At - 1] = 0xFF;
    if (::inet_pton(AF_INET, word.c_str(), address.data() + version4At) == 1) {
        return address;
    }
    return std::nullopt;
}

std::optional<Address> parseAddress(std::u16string_view text) {
    if (std::any_of(text.begin(), text.end(), [](char16_t unit) { return unit > 0x7F; })) {
        return std::nullopt;
    }
    return parseAddress(std::string(text.begin(), text.end()));
}

bool isVersion4(const Address& address) {
    return std::all_of(address.begin(), address.begin() + version4At - 2, [](auto byte) { return byte == 0; }) &&
           address[version4At - 2] == 0xFF && address[version4At - 1] == 0xFF;
}

Bytes addressKey(std::string_view text) {
    if (const auto address = parseAddress(text)) {
        return {address->begin(), address->end()};
    }
    const auto word = trimmed(text);
    if (word.empty()) {
        return {};
    }
    Bytes key(1, hostMark);
    std::transform(word.begin(), word.end(), std::back_inserter(key),
                   [](char letter) { return static_cast<std::uint8_t>(lower(letter)); });
    return key;
}

} // namespace server
