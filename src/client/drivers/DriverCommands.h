#pragma once

#include "client/CQVXAdminClass2.h"
#include "client/RecordCursor.h"
#include "client/drivers/ListedDriver.h"
#include "protocol/drivers/DriverBrand.h"
#include "protocol/drivers/DriverDeployment.h"
#include "protocol/drivers/DriverModel.h"
#include "protocol/drivers/OperatingSystem.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace client {

// The part of CQVXAdminClass for brands, models, drivers and deployments. Cursors return their lists from the last
// record to the first; the whole lists contain the records not returned yet, in the order of the wire. Of a list
// that the server cuts short, they contain what arrived, and its cursor throws as all cursors do.
class DriverCommands {
public:
    explicit DriverCommands(CQVXAdminClass2& client) : client_(client) {}

    bool listDriverBrands();
    bool nextDriverBrand(protocol::DriverBrandRecord& brand);
    [[nodiscard]] const std::vector<protocol::DriverBrandRecord>& driverBrands() const { return brands_.records(); }

    // The models of a brand or the alternates of a model, by a protocol::driverModelList, in the order of the wire.
    // False when not all of them arrived. Throws ConnectFailed.
    [[nodiscard]] bool listDriverModels(std::uint8_t listKind, const std::string& parentId,
                                        std::vector<protocol::DriverModelRecord>& models);

    bool listOperatingSystems();
    bool nextOperatingSystem(protocol::OperatingSystemRecord& system);
    [[nodiscard]] const std::vector<protocol::OperatingSystemRecord>& operatingSystems() const {
        return systems_.records();
    }

    // The drivers of a brand or of a model, by a protocol::driverList. A short list is read, but none of its records
    // are returned.
    bool listDrivers(std::uint8_t listKind, const std::string& parentId);
    bool nextDriver(ListedDriver& driver);
    [[nodiscard]] const std::vector<ListedDriver>& drivers() const { return drivers_.records(); }

    // The deployments of a model, with an empty driver those of all its drivers.
    bool listDriverDeployments(const std::string& modelId, const std::string& driverId = {});
    bool nextDriverDeployment(protocol::DriverDeploymentRecord& deployment);
    [[nodiscard]] const std::vector<protocol::DriverDeploymentRecord>& driverDeployments() const {
        return deployments_.records();
    }

    bool deleteDriver(const std::string& driverId);
    bool addDriverDeployment(const protocol::AddDriverDeploymentRequest& deployment);
    bool updateDriverDeployment(const protocol::UpdateDriverDeploymentRequest& change);
    bool removeDriverDeployment(const std::string& deploymentId);

    // Both counts are 0 when this is false.
    bool countDeploymentConfigs(const std::string& modelId, const std::string& osId, const wire::WideString& locale,
                                protocol::CountDeploymentConfigsReply& counts);

    bool setDriverModelVisible(const std::string& modelId, bool visible);
    bool addDriverModel(const std::string& brandId, const wire::WideString& name);
    bool addBuiltInDriver(const std::string& modelId);
    bool addAlternateDriver(const std::string& modelId, const std::string& alternateModelId);
    bool removeAlternateDriver(const std::string& modelId, const std::string& alternateModelId);

    // 0 default, 1 normal, 2 swapped; empty without an answer.
    bool setModelOctetOrder(const std::string& modelId, std::uint32_t octetOrder);
    [[nodiscard]] std::optional<std::uint32_t> getModelOctetOrder(const std::string& modelId);

private:
    CQVXAdminClass2& client_;
    RecordCursor<protocol::DriverBrandRecord> brands_;
    RecordCursor<protocol::OperatingSystemRecord> systems_;
    RecordCursor<ListedDriver> drivers_;
    RecordCursor<protocol::DriverDeploymentRecord> deployments_;
};

} // namespace client
