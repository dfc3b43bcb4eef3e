#include "hosts/ctl/MenuWriter.h"

#include "hosts/ctl/ReplyJson.h"
#include "shell/ListExport.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <array>
#include <vector>

namespace ctl {

void writeMenu(std::ostream& out, std::span<const shell::MenuItem> menu, Format format) {
    if (format == Format::json) {
        Json json = Json::array();
        for (const auto& item : menu) {
            json.push_back(item.separator ? Json{{"separator", true}}
                                          : Json{{"text", wire::toUtf8(item.text)},
                                                 {"status", wire::toUtf8(item.statusText)},
                                                 {"id", item.id}});
        }
        out << dump(json, 2) << '\n';
        return;
    }
    std::vector<std::array<wire::WideString, 3>> rows;
    for (const auto& item : menu) {
        if (!item.separator) {
            rows.push_back({wire::toWide(std::to_string(item.id)), item.text, item.statusText});
        }
    }
    const shell::Table table{
        .columns = {u"Id", u"Text", u"Status"},
        .rowCount = rows.size(),
        .cell = [&](std::size_t row, std::size_t column) -> wire::WideStringView { return rows[row][column]; }};
    format == Format::csv ? shell::writeCsv(out, table) : shell::writeText(out, table);
}

} // namespace ctl
