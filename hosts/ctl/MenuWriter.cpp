#include "hosts/ctl/MenuWriter.h"

#include "hosts/ctl/ReplyJson.h"
#include "hosts/ctl/TableWriter.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <vector>

namespace ctl {
namespace {

// The marks are only written where there are any.
Json jsonOf(const shell::MenuItem& item) {
    Json json{{"text", wire::toUtf8(item.text)}, {"status", wire::toUtf8(item.statusText)}, {"id", item.id}};
    if (item.checked) {
        json["checked"] = true;
    }
    if (item.disabled) {
        json["disabled"] = true;
    }
    return json;
}

wire::WideString marksOf(const shell::MenuItem& item) {
    wire::WideString marks = item.checked ? u"checked" : u"";
    if (item.disabled) {
        marks += marks.empty() ? u"disabled" : u", disabled";
    }
    return marks;
}

} // namespace

void writeMenu(std::ostream& out, std::span<const shell::MenuItem> menu, Format format) {
    if (format == Format::json) {
        Json json = Json::array();
        for (const auto& item : menu) {
            json.push_back(item.separator ? Json{{"separator", true}} : jsonOf(item));
        }
        out << dump(json, 2) << '\n';
        return;
    }
    std::vector<std::array<wire::WideString, 4>> rows;
    for (const auto& item : menu) {
        if (!item.separator) {
            rows.push_back({wire::toWide(std::to_string(item.id)), item.text, item.statusText, marksOf(item)});
        }
    }
    shell::Table table{
        .columns = {u"Id", u"Text", u"Status"},
        .rowCount = rows.size(),
        .cell = [&](std::size_t row, std::size_t column) -> wire::WideStringView { return rows[row][column]; }};
    if (std::ranges::any_of(rows, [](const auto& row) { return !row.back().empty(); })) {
        table.columns.emplace_back(u"Mark");
    }
    writeTable(out, table, format);
}

} // namespace ctl
