#include "hosts/ctl/NodePath.h"

#include "hosts/ctl/Failure.h"

#include <algorithm>

namespace ctl {
namespace {

Failure badPath(std::string_view path, const std::string& why) {
    return {ExitStatus::usage, "The path \"" + std::string(path) + "\" " + why};
}

} // namespace

NodePath parsePath(std::string_view text) {
    std::vector<std::string> names(1);
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\\') {
            if (++i == text.size() || (text[i] != '/' && text[i] != '\\')) {
                throw badPath(text, "has a backslash that is not followed by \"/\" or \"\\\"");
            }
            names.back() += text[i];
        } else if (text[i] == '/') {
            names.emplace_back();
        } else {
            names.back() += text[i];
        }
    }
    if (names.front().empty()) {
        names.erase(names.begin());
    }
    if (!names.empty() && names.back().empty()) {
        names.pop_back();
    }
    if (std::ranges::any_of(names, [](const std::string& name) { return name.empty(); })) {
        throw badPath(text, "has an empty name");
    }
    NodePath path;
    std::ranges::transform(names, std::back_inserter(path), [](const std::string& name) { return wire::toWide(name); });
    return path;
}

std::string formatPath(const NodePath& path) {
    std::string text;
    for (const auto& name : path) {
        text += text.empty() ? "" : "/";
        for (const char c : wire::toUtf8(name)) {
            if (c == '/' || c == '\\') {
                text += '\\';
            }
            text += c;
        }
    }
    return text;
}

} // namespace ctl
