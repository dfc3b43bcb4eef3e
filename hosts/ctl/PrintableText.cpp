#include "hosts/ctl/PrintableText.h"

#include "hosts/ctl/Failure.h"
#include "shell/VisibleText.h"
#include "wire/CaseFold.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace ctl {
namespace {

constexpr std::size_t mostListed = 20;

using Places = std::vector<std::size_t>;

template <class Matches>
Places placesOf(std::span<const wire::WideString> texts, Matches matches) {
    Places places;
    for (std::size_t place = 0; place < texts.size(); ++place) {
        if (matches(texts[place])) {
            places.push_back(place);
        }
    }
    return places;
}

// The places of texts equal to the name, or else of those equal without regard to case.
Places placesCalled(wire::WideStringView name, std::span<const wire::WideString> texts) {
    auto exact = placesOf(texts, [&](const wire::WideString& text) { return text == name; });
    return !exact.empty() ? exact : placesOf(texts, [&](const wire::WideString& text) { return sameWord(text, name); });
}

// "North" and 2 of "North#2".
std::optional<std::pair<wire::WideStringView, std::size_t>> numbered(wire::WideStringView name) {
    const auto sign = name.rfind(u'#');
    if (sign == wire::WideStringView::npos) {
        return std::nullopt;
    }
    const auto digits = wire::toUtf8(name.substr(sign + 1));
    std::size_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (error != std::errc() || end != digits.data() + digits.size() || number == 0) {
        return std::nullopt;
    }
    return std::pair(name.substr(0, sign), number);
}

// The place of a text named by its number; texts.size() when there is none.
std::size_t numberedPlace(wire::WideStringView name, std::span<const wire::WideString> texts) {
    const auto parts = numbered(name);
    if (!parts) {
        return texts.size();
    }
    const auto& [called, number] = *parts;
    if (called.empty()) {
        return std::min(number - 1, texts.size());
    }
    const auto places = placesCalled(called, texts);
    return number <= places.size() ? places[number - 1] : texts.size();
}

} // namespace

std::string shown(wire::WideStringView text) {
    return wire::toUtf8(shell::visibleText(text));
}

std::string listed(std::span<const wire::WideString> texts) {
    std::map<wire::WideStringView, std::size_t> count;
    for (const auto& text : texts) {
        ++count[text];
    }
    std::map<wire::WideStringView, std::size_t> number;
    std::string line;
    for (const auto& text : texts.first(std::min(texts.size(), mostListed))) {
        line += (line.empty() ? "\"" : ", \"") + shown(text) +
                (count[text] > 1 ? '#' + std::to_string(++number[text]) : "") + '"';
    }
    if (texts.size() > mostListed) {
        line += " and " + std::to_string(texts.size() - mostListed) + " more";
    }
    return line;
}

wire::WideString bearable(wire::WideString text) {
    constexpr std::size_t longest = 32767; // the length before a text counts bytes and has 16 bits
    if (text.size() > longest) {
        throw Failure(ExitStatus::usage, "The text \"" + shown(text.substr(0, 20)) + "...\" is longer than the " +
                                             std::to_string(longest) + " characters of a command");
    }
    return text;
}

bool sameWord(wire::WideStringView a, wire::WideStringView b) {
    return a.size() == b.size() && wire::compareIgnoringCase(a, b) == 0;
}

std::size_t placeOf(wire::WideStringView name, std::span<const wire::WideString> texts, const std::string& what) {
    const auto places = placesCalled(name, texts);
    if (places.size() > 1) {
        const auto called = shown(name);
        throw Failure(ExitStatus::refused, "There is more than one " + what + " \"" + called + "\"; say which with \"" +
                                               called + "#1\" to \"" + called + '#' + std::to_string(places.size()) +
                                               '"');
    }
    return places.empty() ? numberedPlace(name, texts) : places.front();
}

} // namespace ctl
