#include "tests/torture/Database.h"

#include <sqlite3.h>

#include <algorithm>
#include <iterator>
#include <memory>
#include <set>
#include <stdexcept>
#include <string_view>

namespace torture {

namespace {

using Row = std::vector<std::string>;

// A database without a server.
class Connection {
public:
    explicit Connection(const std::filesystem::path& file) {
        const int code = sqlite3_open_v2(file.c_str(), &database_, SQLITE_OPEN_READWRITE, nullptr);
        if (code != SQLITE_OK) {
            sqlite3_close(database_);
            throw std::runtime_error(file.string() + " cannot be opened");
        }
    }
    ~Connection() { sqlite3_close(database_); }
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    [[nodiscard]] std::vector<Row> ask(const std::string& query) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v2(database_, query.c_str(), -1, &statement, nullptr) != SQLITE_OK) {
            throw std::runtime_error(query + ": " + sqlite3_errmsg(database_));
        }
        const std::unique_ptr<sqlite3_stmt, decltype(&sqlite3_finalize)> owner(statement, &sqlite3_finalize);
        std::vector<Row> rows;
        int code = SQLITE_OK;
        while ((code = sqlite3_step(statement)) == SQLITE_ROW) {
            Row& row = rows.emplace_back();
            for (int column = 0; column < sqlite3_column_count(statement); ++column) {
                const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
                row.emplace_back(text == nullptr ? "NULL" : text);
            }
        }
        if (code != SQLITE_DONE) {
            throw std::runtime_error(query + ": " + sqlite3_errmsg(database_));
        }
        return rows;
    }

private:
    sqlite3* database_ = nullptr;
};

// A row as text in which wide texts are distinct, too. The time at which a report was made is left out.
std::string quotedColumns(Connection& connection, const std::string& table) {
    std::string columns;
    for (const auto& column :
         connection.ask("SELECT name FROM pragma_table_info('" + table + "') WHERE name <> 'reportDate'")) {
        columns += (columns.empty() ? "quote(" : " || '|' || quote(") + column[0] + ")";
    }
    return columns;
}

constexpr std::size_t uuidLength = 36;

bool isUuid(std::string_view text) {
    for (std::size_t at = 0; at < text.size(); ++at) {
        const bool isDash = at == 8 || at == 13 || at == 18 || at == 23;
        if (isDash ? text[at] != '-' : std::string_view("0123456789abcdef").find(text[at]) == std::string_view::npos) {
            return false;
        }
    }
    return text.size() == uuidLength;
}

// Calls the action with the position of each uuid.
template <class Action>
void eachUuid(std::string_view line, Action action) {
    for (std::size_t dash = line.find('-'); dash != std::string_view::npos; dash = line.find('-', dash + 1)) {
        const std::size_t before = 8;
        if (dash >= before && isUuid(line.substr(dash - before, uuidLength))) {
            action(dash - before);
            dash += uuidLength - before;
        }
    }
}

std::set<std::string> uuidsOf(const Contents& contents) {
    std::set<std::string> uuids;
    for (const auto& line : contents) {
        eachUuid(line, [&](std::size_t at) { uuids.insert(line.substr(at, uuidLength)); });
    }
    return uuids;
}

} // namespace

std::filesystem::path copyDatabase(const std::filesystem::path& file, const std::filesystem::path& folder) {
    const auto copy = folder / file.filename();
    for (const char* ending : {"", "-wal"}) {
        auto from = file;
        auto to = copy;
        from += ending;
        to += ending;
        std::filesystem::remove(to);
        if (std::filesystem::exists(from)) {
            std::filesystem::copy_file(from, to);
        }
    }
    auto index = copy;
    std::filesystem::remove(index += "-shm");
    return copy;
}

void losePower(const std::filesystem::path& file) {
    for (const char* ending : {"", "-wal"}) {
        auto lost = file;
        lost += ending;
        auto synced = lost;
        synced += ".synced";
        std::filesystem::remove(lost);
        if (std::filesystem::exists(synced)) {
            std::filesystem::rename(synced, lost);
        }
    }
    auto index = file;
    std::filesystem::remove(index += "-shm");
}

std::string damageOf(const std::filesystem::path& file) {
    Connection connection(file);
    std::string damage;
    for (const auto& row : connection.ask("PRAGMA integrity_check")) {
        if (row[0] != "ok") {
            damage += row[0] + "\n";
        }
    }
    for (const auto& row : connection.ask("PRAGMA foreign_key_check")) {
        damage += "row " + row[1] + " of " + row[0] + " refers to nothing in " + row[2] + "\n";
    }
    return damage;
}

Contents contentsOf(const std::filesystem::path& file, const Contents& known) {
    const auto knownIds = uuidsOf(known);
    Connection connection(file);
    Contents contents;
    for (const auto& table : connection.ask("SELECT name FROM sqlite_schema WHERE type = 'table'")) {
        const auto columns = quotedColumns(connection, table[0]);
        for (const auto& row : connection.ask("SELECT " + columns + " FROM " + table[0])) {
            contents.push_back(table[0] + ": " + row[0]);
        }
    }
    if (!known.empty()) {
        for (auto& line : contents) {
            eachUuid(std::string(line), [&](std::size_t at) {
                if (!knownIds.contains(line.substr(at, uuidLength))) {
                    line.replace(at, uuidLength, std::string(uuidLength, '?'));
                }
            });
        }
    }
    std::ranges::sort(contents);
    return contents;
}

std::string differenceOf(const Contents& one, const Contents& other) {
    Contents different;
    std::ranges::set_symmetric_difference(one, other, std::back_inserter(different));
    std::string text;
    for (const auto& line : different) {
        text += (std::ranges::binary_search(one, line) ? "+ " : "- ") + line + "\n";
    }
    return text;
}

} // namespace torture
