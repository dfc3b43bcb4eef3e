#include "server/configurations/ConfigurationTable.h"

#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

namespace {

using protocol::ConfigurationRecord;

// A queue that uses it with several deployments counts once.
const std::string recordColumns =
    "id, uploadedBy, date, comment, configText, (SELECT min(count(*), 65535) FROM (SELECT DISTINCT queueKey, "
    "queueNumber FROM queueConfiguration WHERE configurationNumber = configuration.number))";

} // namespace

ConfigurationTable::ConfigurationTable(sqlite3* connection)
    : find_(connection, "SELECT " + recordColumns + ", modelId FROM configuration WHERE id = ?"),
      nameTaken_(connection, "SELECT 1 FROM configuration WHERE modelId = ? AND nameKey = ? AND id <> ?"),
      insert_(connection, "INSERT INTO configuration (id, modelId, uploadedBy, date, comment, configText, nameKey) "
                          "VALUES (?, ?, ?, ?, ?, ?, ?)"),
      setComment_(connection, "UPDATE configuration SET comment = ?, nameKey = ? WHERE id = ?"),
      remove_(connection, "DELETE FROM configuration WHERE id = ?"),
      modelOfDeployment_(connection, "SELECT modelId FROM driverDeployment WHERE id = ?"),
      list_(connection, "SELECT " + recordColumns + " FROM configuration WHERE modelId = ? ORDER BY nameKey"),
      listChoices_(connection, "SELECT id, comment FROM configuration WHERE modelId = "
                               "(SELECT modelId FROM driverDeployment WHERE id = ?) ORDER BY nameKey") {}

std::optional<StoredConfiguration> ConfigurationTable::find(const std::string& id) {
    auto rows = find_.run(id);
    if (!rows.next()) {
        return std::nullopt;
    }
    return StoredConfiguration{.record = readFields<ConfigurationRecord>(rows),
                               .modelId = std::string(rows.text(columnCount<ConfigurationRecord>))};
}

bool ConfigurationTable::nameTaken(const std::string& modelId, const wire::WideString& comment,
                                   const std::string& except) {
    return nameTaken_.run(modelId, nameKey(comment), except).next();
}

void ConfigurationTable::insert(const StoredConfiguration& stored) {
    const auto& record = stored.record;
    insert_.execute(record.configId, stored.modelId, record.uploadedBy, record.date, record.comment, record.configText,
                    nameKey(record.comment));
}

void ConfigurationTable::setComment(const std::string& id, const wire::WideString& comment) {
    setComment_.execute(comment, nameKey(comment), id);
}

void ConfigurationTable::remove(const std::string& id) {
    remove_.execute(id);
}

std::optional<std::string> ConfigurationTable::modelOfDeployment(const std::string& deploymentId) {
    auto rows = modelOfDeployment_.run(deploymentId);
    return rows.next() ? std::optional<std::string>(rows.text(0)) : std::nullopt;
}

Listing ConfigurationTable::list(const std::string& modelId) {
    return list_.run(modelId);
}

Listing ConfigurationTable::listChoices(const std::string& deploymentId) {
    return listChoices_.run(deploymentId);
}

} // namespace server
