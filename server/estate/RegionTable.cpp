#include "server/estate/RegionTable.h"

#include "server/store/NameKey.h"

namespace server {

namespace {

constexpr auto columns = "SELECT name, id, ifnull(parentId, 0) FROM region ";

std::optional<std::int32_t> parentColumn(std::int32_t parentId) {
    return parentId == 0 ? std::nullopt : std::optional(parentId);
}

} // namespace

RegionTable::RegionTable(sqlite3* connection)
    : find_(connection, std::string(columns) + "WHERE id = ? AND kind = ?"),
      nameTaken_(connection,
                 "SELECT 1 FROM region WHERE kind = ? AND ifnull(parentId, 0) = ? AND nameKey = ? AND id <> ?"),
      parentOf_(connection, "SELECT parentId FROM region WHERE id = ? AND kind = ?"),
      hasRegions_(connection, "SELECT 1 FROM region WHERE parentId = ? AND kind = ? LIMIT 1"),
      hasRecords_(connection, "SELECT 1 FROM record WHERE regionId = ? AND regionKind = ? LIMIT 1"),
      insert_(connection, "INSERT INTO region (kind, parentId, name, nameKey) VALUES (?, ?, ?, ?)"),
      rename_(connection, "UPDATE region SET name = ?, nameKey = ? WHERE id = ?"),
      move_(connection, "UPDATE region SET parentId = ? WHERE id = ?"),
      remove_(connection, "DELETE FROM region WHERE id = ?"),
      any_(connection, "SELECT 1 FROM region LIMIT 1"),
      listAll_(connection, std::string(columns) + "WHERE kind = ? ORDER BY nameKey, id"),
      listBelow_(connection, std::string(columns) + "WHERE kind = ? AND parentId = ? ORDER BY nameKey, id") {}

std::optional<protocol::RegionRecord> RegionTable::find(std::uint8_t kind, std::int32_t id) {
    auto rows = find_.run(id, kind);
    if (!rows.next()) {
        return std::nullopt;
    }
    return protocol::RegionRecord{.name = rows.wide(0),
                                  .id = static_cast<std::int32_t>(rows.number(1)),
                                  .parentId = static_cast<std::int32_t>(rows.number(2))};
}

bool RegionTable::nameTaken(std::uint8_t kind, std::int32_t parentId, const wire::WideString& name,
                            std::int32_t except) {
    return nameTaken_.run(kind, parentId, nameKey(name), except).next();
}

bool RegionTable::isWithin(std::uint8_t kind, std::int32_t id, std::int32_t other) {
    while (id != other) {
        auto rows = parentOf_.run(id, kind);
        if (!rows.next() || rows.isNull(0)) {
            return false;
        }
        id = static_cast<std::int32_t>(rows.number(0));
    }
    return true;
}

bool RegionTable::hasRegions(std::uint8_t kind, std::int32_t id) {
    return hasRegions_.run(id, kind).next();
}

bool RegionTable::hasRecords(std::uint8_t kind, std::int32_t id) {
    return hasRecords_.run(id, kind).next();
}

std::int32_t RegionTable::insert(std::uint8_t kind, std::int32_t parentId, const wire::WideString& name) {
    return static_cast<std::int32_t>(insert_.insert(kind, parentColumn(parentId), name, nameKey(name)));
}

void RegionTable::rename(std::int32_t id, const wire::WideString& name) {
    rename_.execute(name, nameKey(name), id);
}

void RegionTable::move(std::int32_t id, std::int32_t parentId) {
    move_.execute(parentColumn(parentId), id);
}

void RegionTable::remove(std::int32_t id) {
    remove_.execute(id);
}

bool RegionTable::isEmpty() {
    return !any_.run().next();
}

Rows RegionTable::list(std::uint8_t kind, std::int32_t parentId) {
    return parentId == 0 ? listAll_.run(kind) : listBelow_.run(kind, parentId);
}

} // namespace server
