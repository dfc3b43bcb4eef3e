#include "hosts/ctl/ListWriter.h"

#include "console/NodeIdentity.h"
#include "hosts/ctl/ReplyJson.h"
#include "hosts/ctl/TableWriter.h"
#include "shell/RowFilter.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <limits>
#include <numeric>

namespace ctl {
namespace {

// What a program can compute with: the number that the column sorts by, if it has one.
Json valueOf(const shell::Row& row, std::int32_t column) {
    const auto number = row.node->sortValue(column);
    if (!number) {
        return wire::toUtf8(shell::cellOf(row, column));
    }
    constexpr auto noDate = std::numeric_limits<std::int64_t>::min(); // see wire::wireDateOrder
    return *number == noDate ? Json() : Json(*number);
}

void writeLines(std::ostream& out, const std::vector<Json>& lines) {
    for (std::size_t line = 0; line < lines.size(); ++line) {
        out << (line == 0 ? "\n    " : ",\n    ") << dump(lines[line]);
    }
    out << (lines.empty() ? "]" : "\n  ]");
}

} // namespace

std::vector<wire::WideString> titlesOf(const shell::Shell& shell) {
    std::vector<wire::WideString> titles;
    std::ranges::transform(shell.header().columns(), std::back_inserter(titles), &shell::ShownColumn::title);
    return titles;
}

ListWriter::ListWriter(const shell::Shell& shell, const ListChoice& choice) : titles_(titlesOf(shell)) {
    for (const auto& key : choice.sort) {
        columnOrRefused(key.column, titles_);
    }
    const shell::RowFilter filter(choice.filter, titles_);
    for (std::size_t index = 0; index < shell.pane().rowCount(); ++index) {
        if (const auto& row = shell.pane().row(index); filter.matches(row)) {
            rows_.push_back(&row);
        }
    }
    sortBy(rows_, choice, titles_);
    if (choice.columns.empty()) {
        columns_.resize(titles_.size());
        std::iota(columns_.begin(), columns_.end(), 0);
        return;
    }
    std::vector<wire::WideString> chosen;
    for (const auto& name : choice.columns) {
        columns_.push_back(columnOrRefused(name, titles_));
        chosen.push_back(titles_[static_cast<std::size_t>(columns_.back())]);
    }
    titles_ = std::move(chosen);
}

void ListWriter::writeJson(std::ostream& out, const NodePath& path) const {
    Json titles = Json::array();
    std::ranges::transform(titles_, std::back_inserter(titles), wire::toUtf8);
    std::vector<Json> texts;
    std::vector<Json> records;
    for (const shell::Row* const row : rows_) {
        auto& cells = texts.emplace_back(Json::array());
        Json values = Json::object();
        for (std::size_t place = 0; place < columns_.size(); ++place) {
            cells.push_back(wire::toUtf8(shell::cellOf(*row, columns_[place])));
            values[wire::toUtf8(titles_[place])] = valueOf(*row, columns_[place]);
        }
        records.push_back({{"id", row->node->refreshKey()},
                           {"kind", wire::toUtf8(row->node->nodeIdentity().displayName)},
                           {"values", std::move(values)}});
        if (const auto state = row->node->rowState()) {
            records.back()["status"] = wire::toUtf8(console::describe(*state));
        }
    }
    out << "{\n  \"path\": " << dump(formatPath(path)) << ",\n  \"columns\": " << dump(titles) << ",\n  \"rows\": [";
    writeLines(out, texts);
    out << ",\n  \"records\": [";
    writeLines(out, records);
    out << "\n}\n";
}

void ListWriter::write(std::ostream& out, Format format) const {
    writeTable(
        out,
        {.columns = titles_,
         .rowCount = rows_.size(),
         .cell = [this](std::size_t row, std::size_t column) { return shell::cellOf(*rows_[row], columns_[column]); }},
        format);
}

} // namespace ctl
