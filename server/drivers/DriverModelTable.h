#pragma once

#include "protocol/drivers/DriverModel.h"
#include "server/store/ListQuery.h"

#include <cstdint>
#include <optional>
#include <string>

namespace server {

// A model and the brand that it belongs to.
struct StoredModel {
    protocol::DriverModelRecord record;
    std::string brandId;
};

// The brands, their models, and which model can replace which, accessed over one connection to the database without any
// checks. Throws StoreError.
class DriverModelTable {
public:
    explicit DriverModelTable(sqlite3* connection);

    void insertBrand(const std::string& id, const wire::WideString& name);
    [[nodiscard]] bool hasBrand(const std::string& id);

    // Rows of DriverBrandRecord, by name.
    [[nodiscard]] Listing listBrands();

    void insert(const StoredModel& model);
    [[nodiscard]] std::optional<StoredModel> find(const std::string& id);
    [[nodiscard]] bool nameTaken(const std::string& brandId, const wire::WideString& name);
    void setVisible(const std::string& id, bool visible);
    void setOctetOrder(const std::string& id, std::uint32_t order);
    [[nodiscard]] std::optional<std::uint32_t> octetOrder(const std::string& id);

    // Rows of DriverModelRecord, by name. An unknown kind of list selects nothing.
    [[nodiscard]] Listing list(std::uint8_t listKind, const std::string& parentId);

    void addAlternate(const std::string& modelId, const std::string& alternateModelId);
    [[nodiscard]] bool isAlternate(const std::string& modelId, const std::string& alternateModelId);
    void removeAlternate(const std::string& modelId, const std::string& alternateModelId);

private:
    Query insertBrand_;
    Query hasBrand_;
    ListQuery listBrands_;
    Query insert_;
    Query find_;
    Query nameTaken_;
    Query setVisible_;
    Query setOctetOrder_;
    Query octetOrder_;
    ListQuery ofBrand_;
    ListQuery forDialogs_;
    ListQuery forAlternates_;
    ListQuery alternates_;
    Query addAlternate_;
    Query isAlternate_;
    Query removeAlternate_;
};

} // namespace server
