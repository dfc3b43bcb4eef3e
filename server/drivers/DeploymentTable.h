#pragma once

#include "protocol/drivers/OperatingSystem.h"
#include "server/store/ListQuery.h"

#include <cstdint>
#include <optional>
#include <string>

namespace server {

// What a deployment is for: there is at most one deployment for each place.
struct DeploymentPlace {
    std::string modelId;
    std::string osId;
    wire::WideString locale; // case does not matter
};

// How a deployed driver is used and installed.
struct DeploymentState {
    bool use = true;
    bool install = false;
    std::uint8_t installMethod = 0; // a protocol::installMethod

    bool operator==(const DeploymentState&) const = default;
};

// A deployment without the texts of the driver and the operating system, which are stored elsewhere.
struct StoredDeployment {
    std::string id;
    std::string driverId;
    DeploymentPlace place;
    wire::WideString comment;
    DeploymentState state;
};

// The operating systems and the deployed drivers, accessed over one connection to the database without any checks.
// Throws StoreError.
class DeploymentTable {
public:
    explicit DeploymentTable(sqlite3* connection);

    [[nodiscard]] std::optional<protocol::OperatingSystemRecord> findSystem(const std::string& osId);

    // Rows of OperatingSystemRecord, by name.
    [[nodiscard]] Listing listSystems();

    // Driver, model and operating system have to exist, and the place has to be free.
    void insert(const StoredDeployment& deployment);
    [[nodiscard]] std::optional<StoredDeployment> find(const std::string& id);

    // The deployment for that place; none when nothing is deployed there.
    [[nodiscard]] std::optional<std::string> idAt(const DeploymentPlace& place);
    void setState(const std::string& id, const DeploymentState& state);

    // Also removes what queues use with it.
    void remove(const std::string& id);

    // Rows of DriverDeploymentRecord, by operating system and locale; with an empty driver those of all drivers.
    [[nodiscard]] Listing list(const std::string& modelId, const std::string& driverId);

private:
    Query findSystem_;
    ListQuery listSystems_;
    Query insert_;
    Query find_;
    Query idAt_;
    Query setState_;
    Query remove_;
    ListQuery ofModel_;
    ListQuery ofDriver_;
};

} // namespace server
