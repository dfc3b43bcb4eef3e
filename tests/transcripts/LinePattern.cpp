#include "tests/transcripts/LinePattern.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>
#include <vector>

namespace transcripts {
namespace {

bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

bool isHex(char c) {
    return isDigit(c) || (c >= 'a' && c <= 'f');
}

// Whether the text begins like the mask, where 0 is any digit and a any hexadecimal one.
bool beginsLike(std::string_view text, std::string_view mask) {
    return text.size() >= mask.size() && std::equal(mask.begin(), mask.end(), text.begin(), [](char m, char c) {
               return m == '0' ? isDigit(c) : m == 'a' ? isHex(c) : m == c;
           });
}

constexpr std::string_view uuidMask = "aaaaaaaa-aaaa-aaaa-aaaa-aaaaaaaaaaaa";
constexpr std::string_view dateMask = "0000-00-00 00:00:00.000";
constexpr std::size_t dateEnds[] = {23, 19, 10}; // with milliseconds, with the time, the day alone

// How long a text of the kind may be at the beginning of this one, the longest first. None for an unknown kind.
std::vector<std::size_t> lengthsOf(std::string_view kind, std::string_view text) {
    std::vector<std::size_t> lengths;
    if (kind == "uuid" && beginsLike(text, uuidMask)) {
        lengths.push_back(uuidMask.size());
    } else if (kind == "date") {
        std::ranges::copy_if(dateEnds, std::back_inserter(lengths),
                             [&](std::size_t end) { return beginsLike(text, dateMask.substr(0, end)); });
    } else if (kind == "number") {
        const auto sign = static_cast<std::size_t>(text.starts_with('-'));
        const auto end = std::find_if_not(text.begin() + static_cast<std::ptrdiff_t>(sign), text.end(), isDigit);
        for (auto length = static_cast<std::size_t>(end - text.begin()); length > sign; --length) {
            lengths.push_back(length);
        }
    } else if (kind == "any") {
        for (auto length = text.size() + 1; length > 0; --length) {
            lengths.push_back(length - 1);
        }
    }
    return lengths;
}

bool isKind(std::string_view word) {
    return word == "uuid" || word == "date" || word == "number" || word == "any";
}

// A piece of a pattern: a text as it is, or with a kind something that changes.
struct Piece {
    std::string_view text; // with the braces
    std::string_view name; // empty for none
    std::string_view kind; // empty for none
};

// "{name}" or "{name:kind}" at the beginning of the text.
std::optional<Piece> placeholderAt(std::string_view text) {
    const auto end = text.find('}');
    if (!text.starts_with('{') || end == std::string_view::npos) {
        return std::nullopt;
    }
    const auto inside = text.substr(1, end - 1);
    const auto colon = inside.find(':');
    const auto name = inside.substr(0, colon);
    const auto kind = colon == std::string_view::npos ? std::string_view() : inside.substr(colon + 1);
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    if (name.empty() || !std::ranges::all_of(name, isLetter) || (colon != std::string_view::npos && !isKind(kind))) {
        return std::nullopt;
    }
    return Piece{.text = text.substr(0, end + 1), .name = name, .kind = kind};
}

std::vector<Piece> piecesOf(std::string_view pattern) {
    std::vector<Piece> pieces;
    std::size_t from = 0;
    for (std::size_t at = 0; at < pattern.size();) {
        const auto placeholder = placeholderAt(pattern.substr(at));
        if (!placeholder) {
            ++at;
            continue;
        }
        pieces.push_back({.text = pattern.substr(from, at - from), .name = {}, .kind = {}});
        pieces.push_back(*placeholder);
        at += placeholder->text.size();
        from = at;
    }
    pieces.push_back({.text = pattern.substr(from), .name = {}, .kind = {}});
    return pieces;
}

bool matchRest(std::string_view line, std::span<const Piece> pieces, Names& names) {
    if (pieces.empty()) {
        return line.empty();
    }
    const Piece& piece = pieces.front();
    const auto known = names.find(piece.name);
    const bool isNamed = !piece.kind.empty();
    const auto kind = isNamed ? piece.kind : isKind(piece.name) ? piece.name : std::string_view();
    if (kind.empty()) {
        const auto text = !piece.name.empty() && known != names.end() ? std::string_view(known->second) : piece.text;
        return line.starts_with(text) && matchRest(line.substr(text.size()), pieces.subspan(1), names);
    }
    for (const auto length : lengthsOf(kind, line)) {
        auto tried = names;
        if (isNamed) {
            tried[std::string(piece.name)] = line.substr(0, length);
        }
        if (matchRest(line.substr(length), pieces.subspan(1), tried)) {
            names = std::move(tried);
            return true;
        }
    }
    return false;
}

} // namespace

bool matches(std::string_view line, std::string_view pattern, Names& names) {
    return matchRest(line, piecesOf(pattern), names);
}

std::string withNames(std::string_view text, const Names& names) {
    std::string all;
    for (const Piece& piece : piecesOf(text)) {
        const auto known = names.find(piece.name);
        all += !piece.name.empty() && piece.kind.empty() && known != names.end() ? known->second : piece.text;
    }
    return all;
}

std::string patternOf(std::string_view line) {
    std::string pattern;
    while (!line.empty()) {
        std::size_t length = 0;
        for (const std::string_view kind : {"uuid", "date"}) {
            const auto lengths = lengthsOf(kind, line);
            if (length == 0 && !lengths.empty()) {
                length = lengths.front();
                pattern += '{' + std::string(kind) + '}';
            }
        }
        if (length == 0) {
            pattern += line.front();
            length = 1;
        }
        line.remove_prefix(length);
    }
    return pattern;
}

} // namespace transcripts
