#include "hosts/ctl/TreeWriter.h"

#include "hosts/ctl/NodePath.h"
#include "hosts/ctl/PrintableText.h"
#include "hosts/ctl/ReplyJson.h"
#include "hosts/ctl/TableWriter.h"

#include <nlohmann/json.hpp>

#include <utility>
#include <vector>

namespace ctl {
namespace {

using Line = std::vector<wire::WideString>;
using Lines = std::vector<Line>;

Json jsonOf(const TreeItem& item, std::span<const wire::WideString> titles) {
    Json json{{"name", wire::toUtf8(item.name)}};
    for (std::size_t column = 0; column < item.cells.size(); ++column) {
        if (item.cells[column]) {
            json["cells"][wire::toUtf8(titles[column])] = wire::toUtf8(*item.cells[column]);
        }
    }
    if (item.read) {
        json["children"] = Json::array();
        for (const TreeItem& child : item.children) {
            json["children"].push_back(jsonOf(child, titles));
        }
    }
    return json;
}

void addCells(Line& line, const TreeItem& item) {
    for (const auto& cell : item.cells) {
        line.push_back(cell.value_or(u""));
    }
}

void addPaths(Lines& lines, NodePath& path, const TreeItem& item) {
    path.push_back(item.name);
    auto& line =
        lines.emplace_back(Line{wire::toWide(std::to_string(path.size() - 1)), wire::toWide(formatPath(path))});
    addCells(line, item);
    for (const TreeItem& child : item.children) {
        addPaths(lines, path, child);
    }
    path.pop_back();
}

// The guide leads to the children of the item.
void addGuided(Lines& lines, const wire::WideString& name, const TreeItem& item, const wire::WideString& guide) {
    addCells(lines.emplace_back(Line{name}), item);
    for (const TreeItem& child : item.children) {
        const bool last = &child == &item.children.back();
        addGuided(lines, guide + (last ? u"└── " : u"├── ") + child.name, child, guide + (last ? u"    " : u"│   "));
    }
}

void writeLines(std::ostream& out, const Lines& lines, Line columns, Format format) {
    writeTable(
        out,
        {.columns = std::move(columns),
         .rowCount = lines.size(),
         .cell = [&](std::size_t row, std::size_t column) -> wire::WideStringView { return lines[row][column]; }},
        format);
}

Line with(Line columns, std::span<const wire::WideString> titles) {
    columns.insert(columns.end(), titles.begin(), titles.end());
    return columns;
}

} // namespace

void writeTree(std::ostream& out, const TreeItem& tree, std::span<const wire::WideString> titles, Format format) {
    Lines lines;
    if (format == Format::json) {
        out << dump(jsonOf(tree, titles), 2) << '\n';
    } else if (format == Format::csv) {
        NodePath path;
        addPaths(lines, path, tree);
        writeLines(out, lines, with({u"Level", u"Path"}, titles), format);
    } else {
        addGuided(lines, tree.name, tree, {});
        if (!titles.empty()) {
            writeLines(out, lines, with({u"Tree"}, titles), format);
            return;
        }
        for (const Line& line : lines) {
            out << shown(line.front()) << '\n';
        }
    }
}

} // namespace ctl
