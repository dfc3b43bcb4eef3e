#include "hosts/ctl/NodeFinder.h"

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/PrintableText.h"

#include <algorithm>

namespace ctl {
namespace {

using console::ScopeId;
using Texts = std::vector<wire::WideString>;

std::string choices(std::span<const wire::WideString> texts) {
    return texts.empty() ? "; there is nothing" : "; there is " + listed(texts);
}

Texts textsOf(const shell::ScopeTree& tree, std::span<const ScopeId> items) {
    Texts texts;
    texts.reserve(items.size());
    std::ranges::transform(items, std::back_inserter(texts), [&](ScopeId id) { return tree.text(id); });
    return texts;
}

} // namespace

std::size_t placeOfNode(wire::WideStringView name, std::span<const wire::WideString> texts, const NodePath& above) {
    const std::string where = above.empty() ? "" : " below \"" + shown(wire::toWide(formatPath(above))) + '"';
    const auto place = placeOf(name, texts, "node" + where + " called");
    if (place == texts.size()) {
        throw Failure(ExitStatus::refused, "There is no \"" + shown(name) + '"' + where + choices(texts));
    }
    return place;
}

std::size_t placeOfRow(wire::WideStringView name, std::span<const wire::WideString> texts) {
    const auto place = placeOf(name, texts, "row");
    if (place == texts.size()) {
        throw Failure(ExitStatus::refused, "There is no row \"" + shown(name) + '"' + choices(texts));
    }
    return place;
}

ScopeId findNode(shell::Shell& shell, const NodePath& path) {
    // Paths start below the server, the only item below the root.
    const auto& tree = shell.tree();
    const auto servers = tree.children(tree.root());
    if (servers.empty()) {
        throw Failure(ExitStatus::refused, "The tree is empty");
    }
    ScopeId id = servers.front();
    NodePath above;
    for (const auto& name : path) {
        shell.expand(id);
        const auto children = tree.children(id);
        id = children[placeOfNode(name, textsOf(tree, children), above)];
        above.push_back(name);
    }
    return id;
}

console::ResultId findRow(const shell::Shell& shell, wire::WideStringView name) {
    const auto& pane = shell.pane();
    Texts texts;
    texts.reserve(pane.rowCount());
    for (std::size_t row = 0; row < pane.rowCount(); ++row) {
        texts.emplace_back(pane.cell(row, 0));
    }
    return pane.row(placeOfRow(name, texts)).id;
}

} // namespace ctl
