#pragma once

#include "protocol/inventory/Schema.h"
#include "server/store/ListQuery.h"

#include <optional>

namespace server {

// The migration plans of one connection to the database, and nothing about what is allowed. Throws StoreError.
class MigrationPlanTable {
public:
    explicit MigrationPlanTable(sqlite3* connection);

    void insert(const protocol::SchemaRecord& plan);
    // These are false when there is no plan of that id.
    bool update(const protocol::SchemaRecord& plan);
    bool remove(const std::string& schemaId);

    // In the order of their names: all, and those that cover a printer of the report.
    [[nodiscard]] Listing list() { return all_.run(); }
    [[nodiscard]] Listing listOfReport(std::int64_t report) { return ofReport_.run(report); }
    [[nodiscard]] Listing find(const std::string& schemaId) { return one_.run(schemaId); }

    // A queue of that id is there.
    [[nodiscard]] bool isQueue(const std::string& id);
    // The id of the queue with that name, unless there are several.
    [[nodiscard]] std::optional<std::string> queueNamed(const wire::WideString& name);

private:
    int bindAll(Query& query, const protocol::SchemaRecord& plan);

    sqlite3* connection_;
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
