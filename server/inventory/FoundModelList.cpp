#include "server/inventory/FoundModelList.h"

#include "protocol/inventory/InventoryModel.h"

namespace server {

namespace {

// A model has a driver of its own, or one of its alternates has.
std::string hasDriver(const std::string& model) {
    return "(EXISTS (SELECT 1 FROM driver WHERE driver.modelId = " + model +
           ".id) OR EXISTS (SELECT 1 FROM alternateModel AS other JOIN driver ON driver.modelId = "
           "other.alternateModelId WHERE other.modelId = " +
           model + ".id))";
}

// If several brands have a model of that name, one with a driver is taken.
std::string selectModels(const std::string& where) {
    const std::string named = "(SELECT same.id FROM driverModel AS same WHERE same.nameKey = found.modelKey";
    return "SELECT found.modelName, model.id IS NOT NULL, model.id IS NOT NULL AND " + hasDriver("model") +
           ", found.queueCount, found.clientCount, ifnull(model.id, '') FROM inventoryModel AS found "
           "LEFT JOIN driverModel AS model ON model.id = coalesce(" +
           named + " AND " + hasDriver("same") + " LIMIT 1), " + named + " LIMIT 1)) WHERE found.report = ?" + where +
           " ORDER BY found.modelKey";
}

} // namespace

FoundModelList::FoundModelList(sqlite3* connection)
    : all_(connection, "SELECT 1 FROM inventoryModel WHERE report = ?", selectModels("")),
      working_(connection, selectModels(" AND model.id IS NOT NULL AND " + hasDriver("model"))),
      missing_(connection, selectModels(" AND NOT (model.id IS NOT NULL AND " + hasDriver("model") + ")")) {}

Listing FoundModelList::list(std::uint16_t listKind, std::int64_t report) {
    switch (listKind) {
    case protocol::modelListKind::all:
        return all_.run(report);
    case protocol::modelListKind::working:
        return working_.run(report);
    case protocol::modelListKind::missing:
        return missing_.run(report);
    default:
        return {};
    }
}

} // namespace server
