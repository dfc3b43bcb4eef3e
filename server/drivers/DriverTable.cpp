#include "server/drivers/DriverTable.h"

#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

namespace {

// The columns of DriverRecord.
const std::string columns = "SELECT id, version, comment, uploadDate, uploadedBy, "
                            "EXISTS (SELECT 1 FROM driverDeployment WHERE driverId = driver.id AND use = 1)";

} // namespace

DriverTable::DriverTable(sqlite3* connection)
    : insert_(
          connection,
          "INSERT INTO driver (id, version, versionKey, comment, uploadDate, uploadedBy, modelId, brandId, builtIn) "
          "SELECT ?1, ?2, ?3, ?4, ?5, ?6, id, brandId, ?8 FROM driverModel WHERE id = ?7"),
      find_(connection, columns + ", modelId, builtIn FROM driver WHERE id = ?"),
      hasBuiltIn_(connection, "SELECT 1 FROM driver WHERE modelId = ? AND builtIn = 1"),
      remove_(connection, "DELETE FROM driver WHERE id = ?"),
      ofBrand_(connection, columns + " FROM driver WHERE brandId = ? ORDER BY versionKey, number"),
      ofModel_(connection, columns + " FROM driver WHERE modelId = ? ORDER BY versionKey, number"),
      short_(connection, "SELECT id, version, comment FROM driver WHERE modelId = ? ORDER BY versionKey, number") {}

void DriverTable::insert(const StoredDriver& driver) {
    const auto& record = driver.record;
    insert_.execute(record.driverId, record.version, nameKey(record.version), record.comment, record.uploadDate,
                    record.uploadedBy, driver.modelId, driver.builtIn);
}

std::optional<StoredDriver> DriverTable::find(const std::string& id) {
    auto rows = find_.run(id);
    if (!rows.next()) {
        return std::nullopt;
    }
    constexpr int next = columnCount<protocol::DriverRecord>;
    return StoredDriver{.record = readFields<protocol::DriverRecord>(rows),
                        .modelId = std::string(rows.text(next)),
                        .builtIn = rows.number(next + 1) != 0};
}

bool DriverTable::hasBuiltIn(const std::string& modelId) {
    return hasBuiltIn_.run(modelId).next();
}

void DriverTable::remove(const std::string& id) {
    remove_.execute(id);
}

Listing DriverTable::listOfBrand(const std::string& brandId) {
    return ofBrand_.run(brandId);
}

Listing DriverTable::listOfModel(const std::string& modelId) {
    return ofModel_.run(modelId);
}

Listing DriverTable::listShort(const std::string& modelId) {
    return short_.run(modelId);
}

} // namespace server
