#pragma once

#include "protocol/drivers/Driver.h"
#include "server/store/ListQuery.h"

#include <optional>
#include <string>

namespace server {

// A driver and what it belongs to. Whether it is in use follows from its deployments.
struct StoredDriver {
    protocol::DriverRecord record;
    std::string modelId;
    bool builtIn = false; // comes with the operating system and was not uploaded
};

// The drivers of all models, accessed over one connection to the database without any checks. Throws StoreError.
class DriverTable {
public:
    explicit DriverTable(sqlite3* connection);

    // The model has to exist.
    void insert(const StoredDriver& driver);
    [[nodiscard]] std::optional<StoredDriver> find(const std::string& id);
    [[nodiscard]] bool hasBuiltIn(const std::string& modelId);

    // Also removes its deployments.
    void remove(const std::string& id);

    // Rows of DriverRecord, by version.
    [[nodiscard]] Listing listOfBrand(const std::string& brandId);
    [[nodiscard]] Listing listOfModel(const std::string& modelId);

    // Rows of ShortDriverRecord, by version.
    [[nodiscard]] Listing listShort(const std::string& modelId);

private:
    Query insert_;
    Query find_;
    Query hasBuiltIn_;
    Query remove_;
    ListQuery ofBrand_;
    ListQuery ofModel_;
    ListQuery short_;
};

} // namespace server
