#pragma once

#include "protocol/inventory/Schema.h"
#include "server/store/ListQuery.h"

#include <optional>

namespace server {

// The migration plans, accessed over one connection to the database without any checks. Throws StoreError.
class MigrationPlanTable {
public:
    explicit MigrationPlanTable(sqlite3* connection);

    void insert(const protocol::SchemaRecord& plan);
    // These return false when there is no plan with that id.
    bool update(const protocol::SchemaRecord& plan);
    bool remove(const std::string& schemaId);

    // By name: all plans, and those that cover a printer of the report.
    [[nodiscard]] Listing list() { return all_.run(); }
    [[nodiscard]] Listing listOfReport(std::int64_t report) { return ofReport_.run(report); }
    [[nodiscard]] Listing find(const std::string& schemaId) { return one_.run(schemaId); }

    // Whether there is a queue with that id.
    [[nodiscard]] bool isQueue(const std::string& id);
    // The id of the queue with that name, unless there are several.
    [[nodiscard]] std::optional<std::string> queueNamed(const wire::WideString& name);

private:
    int bindAll(Query& query, const protocol::SchemaRecord& plan);

    Query insert_;
    Query update_;
    Query remove_;
    Query isQueue_;
    Query queueNamed_;
    ListQuery all_;
    ListQuery ofReport_;
    ListQuery one_;
};

} // namespace server
