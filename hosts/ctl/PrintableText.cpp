#include "hosts/ctl/PrintableText.h"

#include "hosts/ctl/Failure.h"
#include "shell/VisibleText.h"
#include "wire/CaseFold.h"

#include <algorithm>

namespace ctl {
namespace {

constexpr std::size_t mostListed = 20;

} // namespace

std::string shown(wire::WideStringView text) {
    return wire::toUtf8(shell::visibleText(text));
}

std::string listed(std::span<const wire::WideString> texts) {
    std::string line;
    for (const auto& text : texts.first(std::min(texts.size(), mostListed))) {
        line += (line.empty() ? "\"" : ", \"") + shown(text) + '"';
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
    const auto theOne = [&](const auto& matches) {
        const auto first = std::ranges::find_if(texts, matches);
        if (first != texts.end() && std::find_if(first + 1, texts.end(), matches) != texts.end()) {
            throw Failure(ExitStatus::refused, "There is more than one " + what + " \"" + shown(name) + '"');
        }
        return static_cast<std::size_t>(first - texts.begin());
    };
    const auto exact = theOne([&](const wire::WideString& text) { return text == name; });
    return exact < texts.size() ? exact : theOne([&](const wire::WideString& text) { return sameWord(text, name); });
}

} // namespace ctl
