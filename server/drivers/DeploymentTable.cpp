#include "server/drivers/DeploymentTable.h"

#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

namespace {

using protocol::OperatingSystemRecord;

const std::string systems = "SELECT id, name, value1, value2, value3 FROM operatingSystem ";

// The columns of DriverDeploymentRecord.
std::string deployments(const std::string& condition) {
    return "SELECT driver.version, deployed.comment, deployed.id, os.id, os.name, deployed.locale, deployed.use, "
           "deployed.install, deployed.installMethod FROM driverDeployment AS deployed "
           "CROSS JOIN driver ON driver.id = deployed.driverId "
           "CROSS JOIN operatingSystem AS os ON os.number = deployed.osNumber "
           "WHERE deployed.modelId = ?" +
           condition + " ORDER BY deployed.osNumber, deployed.localeKey";
}

} // namespace

DeploymentTable::DeploymentTable(sqlite3* connection)
    : findSystem_(connection, systems + "WHERE id = ?"),
      listSystems_(connection, systems + "ORDER BY number"),
      insert_(connection, "INSERT INTO driverDeployment "
                          "(id, driverId, modelId, osNumber, locale, localeKey, comment, use, install, installMethod) "
                          "VALUES (?, ?, ?, (SELECT number FROM operatingSystem WHERE id = ?), ?, ?, ?, ?, ?, ?)"),
      find_(connection, "SELECT deployed.id, driverId, modelId, os.id, locale, comment, use, install, installMethod "
                        "FROM driverDeployment AS deployed JOIN operatingSystem AS os ON os.number = osNumber "
                        "WHERE deployed.id = ?"),
      idAt_(connection, "SELECT id FROM driverDeployment WHERE modelId = ? AND "
                        "osNumber = (SELECT number FROM operatingSystem WHERE id = ?) AND localeKey = ?"),
      setState_(connection, "UPDATE driverDeployment SET use = ?, install = ?, installMethod = ? WHERE id = ?"),
      remove_(connection, "DELETE FROM driverDeployment WHERE id = ?"),
      ofModel_(connection, deployments("")),
      ofDriver_(connection, deployments(" AND deployed.driverId = ?")) {}

std::optional<OperatingSystemRecord> DeploymentTable::findSystem(const std::string& osId) {
    auto rows = findSystem_.run(osId);
    return rows.next() ? std::optional(readFields<OperatingSystemRecord>(rows)) : std::nullopt;
}

Listing DeploymentTable::listSystems() {
    return listSystems_.run();
}

void DeploymentTable::insert(const StoredDeployment& deployment) {
    const auto& [id, driverId, place, comment, state] = deployment;
    insert_.execute(id, driverId, place.modelId, place.osId, place.locale, nameKey(place.locale), comment, state.use,
                    state.install, state.installMethod);
}

std::optional<StoredDeployment> DeploymentTable::find(const std::string& id) {
    auto rows = find_.run(id);
    if (!rows.next()) {
        return std::nullopt;
    }
    return StoredDeployment{
        .id = std::string(rows.text(0)),
        .driverId = std::string(rows.text(1)),
        .place = {.modelId = std::string(rows.text(2)), .osId = std::string(rows.text(3)), .locale = rows.wide(4)},
        .comment = rows.wide(5),
        .state = {.use = rows.number(6) != 0,
                  .install = rows.number(7) != 0,
                  .installMethod = static_cast<std::uint8_t>(rows.number(8))}};
}

std::optional<std::string> DeploymentTable::idAt(const DeploymentPlace& place) {
    auto rows = idAt_.run(place.modelId, place.osId, nameKey(place.locale));
    return rows.next() ? std::optional<std::string>(rows.text(0)) : std::nullopt;
}

void DeploymentTable::setState(const std::string& id, const DeploymentState& state) {
    setState_.execute(state.use, state.install, state.installMethod, id);
}

void DeploymentTable::remove(const std::string& id) {
    remove_.execute(id);
}

Listing DeploymentTable::list(const std::string& modelId, const std::string& driverId) {
    return driverId.empty() ? ofModel_.run(modelId) : ofDriver_.run(modelId, driverId);
}

} // namespace server
