#include "server/rules/RuleEntryTable.h"

#include "protocol/rules/RuleEntry.h"

#include <fmt/format.h>

#include <algorithm>

namespace server {

using protocol::RuleEntryRecord;
namespace entryType = protocol::ruleEntryType;

namespace {

// "CASE type WHEN 1 THEN x'5200...' ... END": the label of each type as the units of wide text.
std::string typeTextColumn() {
    std::string sql = "CASE type";
    for (const auto& [type, label] : entryType::labels) {
        sql += fmt::format(" WHEN {} THEN x'", type);
        for (const char16_t unit : label) {
            sql += fmt::format("{:02X}{:02X}", unit & 0xFF, unit >> 8);
        }
        sql += "'";
    }
    return sql + " END";
}

} // namespace

std::u16string_view ruleEntryTypeText(std::uint8_t type) {
    const auto found = std::ranges::find(entryType::labels, type, &entryType::Labelled::type);
    return found == entryType::labels.end() ? std::u16string_view() : found->label;
}

RuleEntryTable::RuleEntryTable(sqlite3* connection)
    : has_(connection, "SELECT 1 FROM ruleEntry WHERE id = ?"),
      isInGroup_(connection, "SELECT 1 FROM ruleEntry WHERE id = ? AND groupId IS NOT NULL"),
      insert_(connection, "INSERT INTO ruleEntry (type, id, name, comment, affectedName, targetId, parentId, "
                          "affectedId, groupId, recordId, regionId) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?)"),
      update_(connection, "UPDATE ruleEntry SET type = ?, name = ?, comment = ?, affectedName = ?, targetId = ?, "
                          "parentId = ?, affectedId = ? WHERE id = ?"),
      remove_(connection, "DELETE FROM ruleEntry WHERE id = ?"),
      list_(connection, "SELECT type, id, " + typeTextColumn() +
                            ", name, comment, affectedName, targetId, parentId, affectedId FROM ruleEntry "
                            "WHERE ownerId = ? AND ownerNumber = ? ORDER BY number") {}

bool RuleEntryTable::has(const std::string& id) {
    return has_.run(id).next();
}

bool RuleEntryTable::isInGroup(const std::string& id) {
    return isInGroup_.run(id).next();
}

void RuleEntryTable::insert(const RuleEntryRecord& entry, const RuleEntryOwner& owner) {
    insert_.execute(entry.type, entry.id, entry.name, entry.comment, entry.affectedName, entry.targetId, entry.parentId,
                    entry.affectedId, owner.groupId, owner.recordId, owner.regionId);
}

void RuleEntryTable::update(const RuleEntryRecord& entry) {
    update_.execute(entry.type, entry.name, entry.comment, entry.affectedName, entry.targetId, entry.parentId,
                    entry.affectedId, entry.id);
}

void RuleEntryTable::remove(const std::string& id) {
    remove_.execute(id);
}

Listing RuleEntryTable::list(const std::string& ownerId, std::int32_t ownerNumber) {
    return list_.run(ownerId, ownerId.empty() ? ownerNumber : 0);
}

} // namespace server
