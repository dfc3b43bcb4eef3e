#include "server/inventory/QueueSearch.h"

namespace server {

namespace {

std::string selectQueues() {
    return "SELECT id, name FROM record WHERE recordType IN (1, 3) ";
}
constexpr const char* byName = "ORDER BY nameKey, number";

} // namespace

QueueSearch::QueueSearch(sqlite3* connection)
    : all_(connection, selectQueues() + byName),
      matching_(connection, selectQueues() + "AND nameMatches(nameKey, ?) " + byName) {}

Listing QueueSearch::find(const NamePattern& pattern) {
    return pattern.matchesAll() ? all_.run() : matching_.run(pattern.key());
}

} // namespace server
