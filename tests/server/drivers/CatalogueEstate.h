#pragma once

#include "protocol/drivers/DriverDeployment.h"
#include "server/commands/Refusal.h"
#include "server/drivers/DeploymentService.h"
#include "server/drivers/DriverService.h"
#include "server/store/RecordColumns.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace server::test {

// Two brands, the models "m1" and "m2" of the first and "m3" of the second, and the drivers "d1", "d2" and "d3" of
// these, with shorthands for what tests do with them.
class CatalogueEstate {
public:
    using Names = std::vector<std::u16string>;

    explicit CatalogueEstate(StoreConnection& connection) : connection_(connection) {
        connection.change([&] {
            models().insertBrand("b1", u"Halvek");
            models().insertBrand("b2", u"Mirado");
            addModel("m1", u"One", "b1");
            addModel("m2", u"Two", "b1");
            addModel("m3", u"Three", "b2");
            addDriver("d1", "m1");
            addDriver("d2", "m2");
            addDriver("d3", "m3");
            return true;
        });
        const auto systems = all<protocol::OperatingSystemRecord>(deployments().listSystems());
        firstOs = systems.at(0).osId;
        secondOs = systems.at(1).osId;
    }

    [[nodiscard]] DriverService service() { return DriverService(connection_); }
    [[nodiscard]] DeploymentService deploymentService() { return DeploymentService(connection_); }
    [[nodiscard]] DriverModelTable& models() { return connection_.table<DriverModelTable>(); }
    [[nodiscard]] DriverTable& drivers() { return connection_.table<DriverTable>(); }
    [[nodiscard]] DeploymentTable& deployments() { return connection_.table<DeploymentTable>(); }

    void addModel(const std::string& id, const std::u16string& name, const std::string& brandId, bool visible = true) {
        models().insert({.record = {.modelId = id, .name = name, .visible = visible}, .brandId = brandId});
    }
    void addDriver(const std::string& id, const std::string& modelId) {
        drivers().insert({.record = {.driverId = id,
                                     .version = std::u16string(id.begin(), id.end()),
                                     .comment = u"C",
                                     .uploadDate = "2014-03-05 17:04:09",
                                     .uploadedBy = u"Jo"},
                          .modelId = modelId});
    }

    // The driver for a model on the first operating system, installed quietly.
    [[nodiscard]] protocol::AddDriverDeploymentRequest request(const std::string& driverId, const std::string& modelId,
                                                               const std::u16string& locale = u"de") const {
        return {.driverId = driverId,
                .modelId = modelId,
                .comment = u"comment",
                .locale = locale,
                .osId = firstOs,
                .use = 1,
                .install = 1};
    }
    // The id of the new deployment; empty when it was refused.
    std::string deploy(const protocol::AddDriverDeploymentRequest& wanted) {
        const auto reply = connection_.change([&] { return deploymentService().add(wanted); });
        if (!isDone(reply)) {
            return {};
        }
        return deployments().idAt({wanted.modelId, wanted.osId, wanted.locale}).value_or("");
    }
    std::string deploy(const std::string& driverId, const std::string& modelId, const std::u16string& locale = u"de") {
        return deploy(request(driverId, modelId, locale));
    }

    template <protocol::Record R>
    [[nodiscard]] static std::vector<R> all(Listing listing) {
        std::vector<R> records;
        while (listing.rows.next()) {
            records.push_back(readFields<R>(listing.rows));
        }
        EXPECT_EQ(listing.count, static_cast<std::int64_t>(records.size()));
        return records;
    }
    [[nodiscard]] Names modelNames(std::uint8_t listKind, const std::string& parentId) {
        Names names;
        for (auto& model : all<protocol::DriverModelRecord>(models().list(listKind, parentId))) {
            names.push_back(std::move(model.name));
        }
        return names;
    }
    [[nodiscard]] std::vector<protocol::DriverDeploymentRecord> deployed(const std::string& modelId,
                                                                         const std::string& driverId = {}) {
        return all<protocol::DriverDeploymentRecord>(deployments().list(modelId, driverId));
    }

    std::string firstOs;
    std::string secondOs;

private:
    StoreConnection& connection_;
};

} // namespace server::test
