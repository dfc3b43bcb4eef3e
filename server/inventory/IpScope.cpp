#include "server/inventory/IpScope.h"

#include <algorithm>
#include <charconv>

namespace server {

namespace {

constexpr std::string_view separators = ",; \t\r\n";
constexpr unsigned addressBits = 128;
constexpr unsigned bitsBeforeVersion4 = 96;

// Removes blanks beside dashes, which would separate the two ends.
std::string closeUpDashes(std::string_view text) {
    std::string closed;
    for (std::size_t index = 0; index < text.size(); ++index) {
        if (text[index] == '-') {
            while (!closed.empty() && closed.back() == ' ') {
                closed.pop_back();
            }
            index = std::min(text.find_first_not_of(' ', index + 1), text.size()) - 1;
            closed += '-';
        } else {
            closed += text[index];
        }
    }
    return closed;
}

std::optional<AddressBlock> fromEnds(std::string_view first, std::string_view last) {
    const auto from = parseAddress(first);
    const auto to = parseAddress(last);
    if (!from || !to || isVersion4(*from) != isVersion4(*to) || *to < *from) {
        return std::nullopt;
    }
    return AddressBlock{*from, *to};
}

std::optional<AddressBlock> fromPrefix(std::string_view text, std::string_view length) {
    const auto address = parseAddress(text);
    unsigned bits = 0;
    const auto [end, error] = std::from_chars(length.data(), length.data() + length.size(), bits);
    if (!address || error != std::errc{} || end != length.data() + length.size()) {
        return std::nullopt;
    }
    if (bits > (isVersion4(*address) ? addressBits - bitsBeforeVersion4 : addressBits)) {
        return std::nullopt;
    }
    bits += isVersion4(*address) ? bitsBeforeVersion4 : 0;
    AddressBlock block{*address, *address};
    for (unsigned bit = bits; bit < addressBits; ++bit) {
        const auto mask = static_cast<std::uint8_t>(0x80U >> bit % 8);
        block.first[bit / 8] = static_cast<std::uint8_t>(block.first[bit / 8] & ~mask);
        block.last[bit / 8] = static_cast<std::uint8_t>(block.last[bit / 8] | mask);
    }
    return block;
}

// "10.1.*" or "10.1.*.*": stars are only allowed at the end, and the last one covers all remaining parts.
std::optional<AddressBlock> fromStars(std::string_view text) {
    std::string first;
    std::string last;
    bool starred = false;
    for (int part = 0; part < 4; ++part) {
        const auto dot = std::min(text.find('.'), text.size());
        const auto word = text.substr(0, dot);
        if (starred ? word != "*" && !word.empty() : word.empty()) {
            return std::nullopt;
        }
        starred = starred || word == "*";
        first.append(part == 0 ? "" : ".").append(starred ? "0" : word);
        last.append(part == 0 ? "" : ".").append(starred ? "255" : word);
        text.remove_prefix(std::min(dot + 1, text.size()));
    }
    return text.empty() ? fromEnds(first, last) : std::nullopt;
}

std::optional<AddressBlock> parseBlock(std::string_view word) {
    if (const auto dash = word.find('-'); dash != std::string_view::npos) {
        return fromEnds(word.substr(0, dash), word.substr(dash + 1));
    }
    if (const auto slash = word.find('/'); slash != std::string_view::npos) {
        return fromPrefix(word.substr(0, slash), word.substr(slash + 1));
    }
    if (word.find('*') != std::string_view::npos) {
        return fromStars(word);
    }
    return fromEnds(word, word);
}

} // namespace

std::optional<IpScope> IpScope::parse(std::string_view text) {
    IpScope scope;
    const auto closed = closeUpDashes(text);
    for (std::size_t from = closed.find_first_not_of(separators); from != std::string::npos;) {
        const auto to = std::min(closed.find_first_of(separators, from), closed.size());
        const auto block = parseBlock(std::string_view(closed).substr(from, to - from));
        if (!block) {
            return std::nullopt;
        }
        scope.blocks_.push_back(*block);
        from = closed.find_first_not_of(separators, to);
    }
    return scope;
}

bool IpScope::covers(const std::optional<Address>& address) const {
    return isEverything() || (address && std::any_of(blocks_.begin(), blocks_.end(),
                                                     [&](const auto& block) { return block.holds(*address); }));
}

} // namespace server
