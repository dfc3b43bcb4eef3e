#include "server/drivers/DriverModelTable.h"

#include "protocol/drivers/DriverModel.h"
#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"

namespace server {

namespace {

namespace kind = protocol::driverModelList;

std::string modelsOfBrand(const std::string& condition = {}) {
    return "SELECT id, name, visible FROM driverModel WHERE brandId = ?" + condition + " ORDER BY nameKey";
}

} // namespace

DriverModelTable::DriverModelTable(sqlite3* connection)
    : insertBrand_(connection, "INSERT INTO driverBrand (id, name, nameKey) VALUES (?, ?, ?)"),
      hasBrand_(connection, "SELECT 1 FROM driverBrand WHERE id = ?"),
      listBrands_(connection, "SELECT id, name FROM driverBrand ORDER BY nameKey"),
      insert_(connection, "INSERT INTO driverModel (id, name, visible, brandId, nameKey) VALUES (?, ?, ?, ?, ?)"),
      find_(connection, "SELECT id, name, visible, brandId FROM driverModel WHERE id = ?"),
      nameTaken_(connection, "SELECT 1 FROM driverModel WHERE brandId = ? AND nameKey = ?"),
      setVisible_(connection, "UPDATE driverModel SET visible = ?2 WHERE id = ?1"),
      setOctetOrder_(connection, "UPDATE driverModel SET octetOrder = ?2 WHERE id = ?1"),
      octetOrder_(connection, "SELECT octetOrder FROM driverModel WHERE id = ?"),
      ofBrand_(connection, modelsOfBrand()),
      // A hidden model is not offered, but a printer that already has it keeps it when its properties are edited.
      forDialogs_(connection,
                  modelsOfBrand(" AND (visible OR EXISTS (SELECT 1 FROM record WHERE modelId = driverModel.id))")),
      forAlternates_(connection, modelsOfBrand(" AND visible")),
      alternates_(connection, "SELECT other.id, other.name, other.visible FROM alternateModel AS link "
                              "CROSS JOIN driverModel AS other ON other.id = link.alternateModelId "
                              "WHERE link.modelId = ? ORDER BY link.nameKey, link.alternateModelId"),
      addAlternate_(connection, "INSERT INTO alternateModel (modelId, alternateModelId, nameKey) "
                                "SELECT ?1, id, nameKey FROM driverModel WHERE id = ?2"),
      isAlternate_(connection, "SELECT 1 FROM alternateModel WHERE modelId = ? AND alternateModelId = ?"),
      removeAlternate_(connection, "DELETE FROM alternateModel WHERE modelId = ? AND alternateModelId = ?") {}

void DriverModelTable::insertBrand(const std::string& id, const wire::WideString& name) {
    insertBrand_.execute(id, name, nameKey(name));
}

bool DriverModelTable::hasBrand(const std::string& id) {
    return hasBrand_.run(id).next();
}

Listing DriverModelTable::listBrands() {
    return listBrands_.run();
}

void DriverModelTable::insert(const StoredModel& model) {
    int next = bindFields(insert_, model.record);
    insert_.bind(next++, model.brandId);
    insert_.bind(next, nameKey(model.record.name));
    insert_.execute();
}

std::optional<StoredModel> DriverModelTable::find(const std::string& id) {
    auto rows = find_.run(id);
    if (!rows.next()) {
        return std::nullopt;
    }
    return StoredModel{.record = readFields<protocol::DriverModelRecord>(rows),
                       .brandId = std::string(rows.text(columnCount<protocol::DriverModelRecord>))};
}

bool DriverModelTable::nameTaken(const std::string& brandId, const wire::WideString& name) {
    return nameTaken_.run(brandId, nameKey(name)).next();
}

void DriverModelTable::setVisible(const std::string& id, bool visible) {
    setVisible_.execute(id, visible);
}

void DriverModelTable::setOctetOrder(const std::string& id, std::uint32_t order) {
    setOctetOrder_.execute(id, order);
}

std::optional<std::uint32_t> DriverModelTable::octetOrder(const std::string& id) {
    auto rows = octetOrder_.run(id);
    return rows.next() ? std::optional(static_cast<std::uint32_t>(rows.number(0))) : std::nullopt;
}

Listing DriverModelTable::list(std::uint8_t listKind, const std::string& parentId) {
    switch (listKind) {
    case kind::ofBrand:
        return ofBrand_.run(parentId);
    case kind::forDialogs:
        return forDialogs_.run(parentId);
    case kind::alternates:
        return alternates_.run(parentId);
    case kind::forAlternates:
        return forAlternates_.run(parentId);
    default:
        return {};
    }
}

void DriverModelTable::addAlternate(const std::string& modelId, const std::string& alternateModelId) {
    addAlternate_.execute(modelId, alternateModelId);
}

bool DriverModelTable::isAlternate(const std::string& modelId, const std::string& alternateModelId) {
    return isAlternate_.run(modelId, alternateModelId).next();
}

void DriverModelTable::removeAlternate(const std::string& modelId, const std::string& alternateModelId) {
    removeAlternate_.execute(modelId, alternateModelId);
}

} // namespace server
