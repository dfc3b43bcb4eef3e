#include "hosts/ctl/TreeWriter.h"

#include "hosts/ctl/NodePath.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/ReplyJson.h"
#include "shell/ListExport.h"

#include <nlohmann/json.hpp>

#include <array>
#include <functional>

namespace ctl {

using console::ScopeId;

std::vector<ScopeId> TreeWriter::childrenOf(ScopeId id, std::uint32_t level) {
    if (below(level)) {
        return {};
    }
    shell_.expand(id);
    const auto children = shell_.tree().children(id);
    return {children.begin(), children.end()};
}

void TreeWriter::writeJson(std::ostream& out, ScopeId id) {
    const std::function<Json(ScopeId, std::uint32_t)> node = [&](ScopeId item, std::uint32_t level) {
        Json json{{"name", wire::toUtf8(shell_.tree().text(item))}};
        if (!below(level)) {
            Json children = Json::array();
            for (const ScopeId child : childrenOf(item, level)) {
                children.push_back(node(child, level + 1));
            }
            json["children"] = std::move(children);
        }
        return json;
    };
    out << dump(node(id, 0), 2) << '\n';
}

void TreeWriter::writeText(std::ostream& out, ScopeId id) {
    out << shown(shell_.tree().text(id)) << '\n';
    writeLines(out, id, "", 0);
}

void TreeWriter::writeLines(std::ostream& out, ScopeId id, const std::string& guide, std::uint32_t level) {
    const auto children = childrenOf(id, level);
    for (const ScopeId child : children) {
        const bool last = child == children.back();
        out << guide << (last ? "└── " : "├── ") << shown(shell_.tree().text(child)) << '\n';
        writeLines(out, child, guide + (last ? "    " : "│   "), level + 1);
    }
}

void TreeWriter::writeCsv(std::ostream& out, ScopeId id) {
    std::vector<std::array<wire::WideString, 2>> rows;
    NodePath path;
    const std::function<void(ScopeId, std::uint32_t)> add = [&](ScopeId item, std::uint32_t level) {
        path.push_back(shell_.tree().text(item));
        rows.push_back({wire::toWide(std::to_string(level)), wire::toWide(formatPath(path))});
        for (const ScopeId child : childrenOf(item, level)) {
            add(child, level + 1);
        }
        path.pop_back();
    };
    add(id, 0);
    shell::writeCsv(
        out, {.columns = {u"Level", u"Path"},
              .rowCount = rows.size(),
              .cell = [&](std::size_t row, std::size_t column) -> wire::WideStringView { return rows[row][column]; }});
}

} // namespace ctl
