#pragma once

#include "protocol/rules/Affected.h"
#include "protocol/rules/PageLimit.h"
#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleGroup.h"
#include "protocol/rules/ShortId.h"
#include "protocol/rules/UserMessage.h"
#include "server/store/ListQuery.h"
#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

template <protocol::Record R>
inline constexpr const char* tableOf = nullptr;
template <>
inline constexpr const char* tableOf<protocol::RuleGroupRecord> = "ruleGroup";
template <>
inline constexpr const char* tableOf<protocol::AffectedRecord> = "affected";
template <>
inline constexpr const char* tableOf<protocol::PageLimitRecord> = "pageLimit";
template <>
inline constexpr const char* tableOf<protocol::PricePlanRecord> = "pricePlan";
template <>
inline constexpr const char* tableOf<protocol::ShortIdRecord> = "shortId";
template <>
inline constexpr const char* tableOf<protocol::UserMessageRecord> = "userMessage";

// The records of one kind that have an id and a name, without any checks. A list contains the fields of Listed, by name
// and then in the order of creation. Throws StoreError.
template <protocol::Record R, protocol::Record Listed = R>
class NamedTable {
public:
    explicit NamedTable(sqlite3* connection)
        : find_(connection, "SELECT " + columnNames<R>() + from_ + " WHERE id = ?"),
          insert_(connection, "INSERT INTO " + std::string(tableOf<R>) + " (" + columnNames<R>() +
                                  ", nameKey) VALUES (" + columnPlaces<R>() + ", ?)"),
          update_(connection, "UPDATE " + std::string(tableOf<R>) + " SET " + columnAssignments<R>() +
                                  ", nameKey = ? WHERE id = ?"),
          remove_(connection, "DELETE" + from_ + " WHERE id = ?"),
          all_(connection, "SELECT " + columnNames<Listed>() + from_ + " ORDER BY nameKey, number"),
          one_(connection, "SELECT " + columnNames<Listed>() + from_ + " WHERE id = ?") {}

    template <class Id>
    [[nodiscard]] std::optional<R> find(const Id& id) {
        auto rows = find_.run(id);
        return rows.next() ? std::optional(readFields<R>(rows)) : std::nullopt;
    }

    void insert(const R& record) {
        insert_.bind(bindFields(insert_, record), nameKey(record.name));
        insert_.execute();
    }

    // Updates all fields, by the record's id.
    void update(const R& record) {
        const int next = bindFields(update_, record);
        update_.bind(next, nameKey(record.name));
        update_.bind(next + 1, record.id);
        update_.execute();
    }

    template <class Id>
    void remove(const Id& id) {
        remove_.execute(id);
    }

    // All records, or with an id only that one.
    [[nodiscard]] Listing list(const std::string& id = {}) { return id.empty() ? all_.run() : one_.run(id); }

private:
    const std::string from_ = std::string(" FROM ") + tableOf<R>;
    Query find_;
    Query insert_;
    Query update_;
    Query remove_;
    ListQuery all_;
    ListQuery one_;
};

using RuleGroupTable = NamedTable<protocol::RuleGroupRecord>;
using AffectedTable = NamedTable<protocol::AffectedRecord>;
using PageLimitTable = NamedTable<protocol::PageLimitRecord, protocol::PageLimitName>;
using PricePlanTable = NamedTable<protocol::PricePlanRecord>;
using ShortIdTable = NamedTable<protocol::ShortIdRecord>;
using UserMessageTable = NamedTable<protocol::UserMessageRecord>;

} // namespace server
