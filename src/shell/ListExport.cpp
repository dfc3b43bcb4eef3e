#include "shell/ListExport.h"

#include "shell/DisplayWidth.h"
#include "shell/VisibleText.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace shell {
namespace {

constexpr std::string_view columnGap = "  ";

// Calls begin before each row, and cell with the number of each cell in it; the titles are the first row.
template <class Cell, class End>
void walk(const Table& table, Cell&& cell, End&& end) {
    const auto columns = table.columns.size();
    for (std::size_t column = 0; column < columns; ++column) {
        cell(column, table.columns[column]);
    }
    end(std::size_t{0});
    for (std::size_t row = 0; row < table.rowCount; ++row) {
        for (std::size_t column = 0; column < columns; ++column) {
            cell(column, table.cell(row, column));
        }
        end(row + 1);
    }
}

std::string csvField(wire::WideStringView text) {
    auto utf8 = wire::toUtf8(text);
    if (utf8.find_first_of(",\"\r\n") == std::string::npos) {
        return utf8;
    }
    std::string quoted = "\"";
    for (const char c : utf8) {
        quoted.append(c == '"' ? 2U : 1U, c);
    }
    return quoted + '"';
}

std::string jsonString(wire::WideStringView text) {
    static constexpr std::string_view hexDigits = "0123456789abcdef";
    std::string json = "\"";
    for (const char c : wire::toUtf8(text)) {
        const auto byte = static_cast<unsigned char>(c);
        if (c == '"' || c == '\\') {
            json += '\\';
            json += c;
        } else if (c == '\n') {
            json += "\\n";
        } else if (c == '\t') {
            json += "\\t";
        } else if (byte < 0x20 || byte == 0x7F) {
            json += "\\u00";
            json += hexDigits[byte >> 4U];
            json += hexDigits[byte & 0xFU];
        } else {
            json += c;
        }
    }
    return json + '"';
}

// Narrows the widest columns until the lines are not wider than that, but none below the least width.
void fit(std::vector<std::size_t>& widths, std::size_t width) {
    constexpr std::size_t least = 6;
    const auto widthWith = [&](std::size_t most) {
        std::size_t sum = columnGap.size() * (widths.size() - 1);
        for (const std::size_t one : widths) {
            sum += std::min(one, most);
        }
        return sum;
    };
    std::size_t most = std::max(*std::ranges::max_element(widths), least);
    while (most > least && widthWith(most) > width) {
        --most;
    }
    std::ranges::transform(widths, widths.begin(), [most](std::size_t one) { return std::min(one, most); });
}

} // namespace

void writeCsv(std::ostream& out, const Table& table) {
    walk(
        table,
        [&](std::size_t column, wire::WideStringView text) { out << (column == 0 ? "" : ",") << csvField(text); },
        [&](std::size_t) { out << "\r\n"; });
}

void writeJson(std::ostream& out, const Table& table) {
    out << "{\"columns\": [";
    walk(
        table,
        [&](std::size_t column, wire::WideStringView text) { out << (column == 0 ? "" : ", ") << jsonString(text); },
        [&](std::size_t row) {
            out << (row == 0 ? "], \"rows\": [" : "]");
            if (row < table.rowCount) {
                out << (row == 0 ? "\n  [" : ",\n  [");
            }
        });
    out << (table.rowCount == 0 ? "]}\n" : "\n]}\n");
}

void writeText(std::ostream& out, const Table& table) {
    writeText(out, table, unlimitedWidth);
}

void writeText(std::ostream& out, const Table& table, std::size_t width) {
    if (table.columns.empty()) {
        return;
    }
    std::vector<std::size_t> widths(table.columns.size());
    walk(
        table,
        [&](std::size_t column, wire::WideStringView text) {
            widths[column] = std::max(widths[column], displayWidth(visibleText(text)));
        },
        [](std::size_t) {});
    fit(widths, width);
    std::string line;
    std::size_t gap = 0; // blanks to write before the next text, so that no line ends in blanks
    const auto add = [&](std::size_t column, const wire::WideString& whole) {
        const auto text = elided(whole, widths[column]);
        if (!text.empty()) {
            line.append(gap, ' ').append(wire::toUtf8(text));
            gap = 0;
        }
        gap += widths[column] - displayWidth(text) + columnGap.size();
    };
    const auto finish = [&] {
        out << line << '\n';
        line.clear();
        gap = 0;
    };
    walk(
        table, [&](std::size_t column, wire::WideStringView text) { add(column, visibleText(text)); },
        [&](std::size_t row) {
            finish();
            if (row == 0) {
                for (std::size_t column = 0; column < widths.size(); ++column) {
                    add(column, wire::WideString(widths[column], u'-'));
                }
                finish();
            }
        });
}

} // namespace shell
