#include "tests/torture/Database.h"

#include <sqlite3.h>

#include <algorithm>
#include <functional>
#include <memory>
#include <regex>
#include <set>
#include <stdexcept>

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
        if (sqlite3_prepare_v2(database_, query.c_str(), -1, &statement, nullptr) != SQLITE_OK)
            throw std::runtime_error(query + ": " + sqlite3_errmsg(database_));
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
        if (code != SQLITE_DONE)
            throw std::runtime_error(query + ": " + sqlite3_errmsg(database_));
        return rows;
    }

private:
    sqlite3* database_ = nullptr;
};

// A row as text that tells wide text apart too.
std::string quotedColumns(Connection& connection, const std::string& table) {
    std::string columns;
    for (const auto& column : connection.ask("SELECT name FROM pragma_table_info('" + table + "')"))
        columns += (columns.empty() ? "quote(" : " || '|' || quote(") + column[0] + ")";
    return columns;
}

const std::regex& uuid() {
    static const std::regex form("[0-9a-f]{8}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{4}-[0-9a-f]{12}");
    return form;
}

void eachUuid(std::string& line, const std::function<void(std::size_t, const std::string&)>& found) {
    const std::string before = line;
    for (std::sregex_iterator match(before.begin(), before.end(), uuid()), end; match != end; ++match)
        found(static_cast<std::size_t>(match->position()), match->str());
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
        if (std::filesystem::exists(from))
            std::filesystem::copy_file(from, to);
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
        if (std::filesystem::exists(synced))
            std::filesystem::rename(synced, lost);
    }
    auto index = file;
    std::filesystem::remove(index += "-shm");
}

std::string damageOf(const std::filesystem::path& file) {
    Connection connection(file);
    std::string damage;
    for (const auto& row : connection.ask("PRAGMA integrity_check")) {
        if (row[0] != "ok")
            damage += row[0] + "\n";
    }
    for (const auto& row : connection.ask("PRAGMA foreign_key_check"))
        damage += "row " + row[1] + " of " + row[0] + " refers to nothing in " + row[2] + "\n";
    return damage;
}

Contents contentsOf(const std::filesystem::path& file, const Contents& known) {
    std::set<std::string> knownIds;
    for (auto line : known)
        eachUuid(line, [&](std::size_t, const std::string& id) { knownIds.insert(id); });
    Connection connection(file);
    Contents contents;
    for (const auto& table : connection.ask("SELECT name FROM sqlite_schema WHERE type = 'table'")) {
        const auto columns = quotedColumns(connection, table[0]);
        for (const auto& row : connection.ask("SELECT " + columns + " FROM " + table[0]))
            contents.push_back(table[0] + ": " + row[0]);
    }
    if (!known.empty()) {
        for (auto& line : contents) {
            eachUuid(line, [&](std::size_t at, const std::string& id) {
                if (!knownIds.contains(id))
                    line.replace(at, id.size(), std::string(id.size() - 5, ' ') + "<new>");
            });
        }
    }
    std::ranges::sort(contents);
    return contents;
}

} // namespace torture
