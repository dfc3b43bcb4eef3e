#include "server/inventory/MigrationPlanTable.h"

#include "server/inventory/Address.h"
#include "server/inventory/PlanCover.h"
#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

using protocol::SchemaRecord;

namespace {

// A plan without a queue stores null, because the column is a foreign key.
std::string selectPlans(const std::string& rest) {
    auto columns = columnNames<SchemaRecord>("plan.");
    constexpr std::string_view queue = "plan.newQueueId";
    columns.replace(columns.find(queue), queue.size(), "ifnull(plan.newQueueId, '')");
    return "SELECT " + columns + " FROM migrationPlan AS plan " + rest;
}

constexpr const char* bySchema = " ORDER BY plan.schemaKey, plan.number";

} // namespace

MigrationPlanTable::MigrationPlanTable(sqlite3* connection)
    : insert_(connection, "INSERT INTO migrationPlan (" + columnNames<SchemaRecord>() +
                              ", schemaKey, addressKey, nameKey, modelKey, detail) VALUES (" +
                              columnPlaces<SchemaRecord>() + ", ?, ?, ?, ?, ?)"),
      update_(connection, "UPDATE migrationPlan SET " + columnAssignments<SchemaRecord>() +
                              ", schemaKey = ?, addressKey = ?, nameKey = ?, modelKey = ?, detail = ? "
                              "WHERE schemaId = ?"),
      remove_(connection, "DELETE FROM migrationPlan WHERE schemaId = ?"),
      isQueue_(connection, "SELECT 1 FROM record WHERE id = ? AND recordType IN (1, 3)"),
      queueNamed_(connection, "SELECT id FROM record WHERE nameKey = ? AND recordType IN (1, 3) LIMIT 2"),
      all_(connection, selectPlans(bySchema)),
      ofReport_(connection, selectPlans("WHERE " + planCover::coversSomethingInReport() + bySchema)),
      one_(connection, selectPlans("WHERE plan.schemaId = ?")) {}

int MigrationPlanTable::bindAll(Query& query, const SchemaRecord& plan) {
    constexpr int queueAt = 4;
    int index = bindFields(query, plan);
    if (plan.newQueueId.empty()) {
        query.bind(queueAt, nullptr);
    }
    const auto address = addressKey(plan.oldIp);
    query.bind(index++, nameKey(plan.schemaName));
    query.bind(index++, address);
    query.bind(index++, nameKey(plan.oldPrinterName));
    query.bind(index++, nameKey(plan.oldModelName));
    query.bind(index++, (address.empty() ? 0 : 1) + (plan.oldPrinterName.empty() ? 0 : 1) +
                            (plan.oldModelName.empty() ? 0 : 1) + (plan.oldPort.empty() ? 0 : 1));
    return index;
}

void MigrationPlanTable::insert(const SchemaRecord& plan) {
    bindAll(insert_, plan);
    insert_.execute();
}

bool MigrationPlanTable::update(const SchemaRecord& plan) {
    update_.bind(bindAll(update_, plan), plan.schemaId);
    return update_.affects();
}

bool MigrationPlanTable::remove(const std::string& schemaId) {
    return remove_.affects(schemaId);
}

bool MigrationPlanTable::isQueue(const std::string& id) {
    return isQueue_.run(id).next();
}

std::optional<std::string> MigrationPlanTable::queueNamed(const wire::WideString& name) {
    auto rows = queueNamed_.run(nameKey(name));
    if (!rows.next()) {
        return std::nullopt;
    }
    std::string id(rows.text(0));
    return rows.next() ? std::nullopt : std::optional(std::move(id));
}

} // namespace server
