#pragma once

#include "protocol/configurations/Configuration.h"
#include "protocol/configurations/QueueConfiguration.h"
#include "server/configurations/ConfigurationService.h"
#include "server/estate/RecordService.h"
#include "server/estate/RecordTable.h"
#include "server/estate/RegionTable.h"
#include "server/store/NameKey.h"
#include "server/store/RecordColumns.h"
#include "tests/server/support/QueryPlans.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace server::test {

// SQL access to what the tests of configurations need from the other tables.
class Statements {
public:
    explicit Statements(sqlite3* connection) : connection_(connection) {}

    template <class... Values>
    void run(const std::string& sql, const Values&... values) {
        Query(connection_, sql).execute(values...);
    }

    // The first column of the first row.
    template <class... Values>
    [[nodiscard]] std::int64_t number(const std::string& sql, const Values&... values) {
        Query query(connection_, sql);
        auto rows = query.run(values...);
        return rows.next() ? rows.number(0) : -1;
    }

private:
    sqlite3* connection_;
};

// Shorthands for what tests do with the models, queues and configurations of an estate. The test chooses the ids.
class ConfiguredEstate {
public:
    explicit ConfiguredEstate(StoreConnection& connection) : connection_(connection) {
        sql().run("INSERT INTO driverBrand VALUES ('brand', x'4200', x'4200')");
        region_ = connection.table<RegionTable>().insert(0, 0, u"North");
        home_ = connection.table<RegionTable>().insert(1, 0, u"Home");
    }

    // A model with a driver of the same id, prefixed with "driver ".
    void addModel(const std::string& id) {
        const std::u16string name(id.begin(), id.end());
        sql().run("INSERT INTO driverModel (id, brandId, name, nameKey) VALUES (?, 'brand', ?, ?)", id, name,
                  nameKey(name));
        addDriver("driver " + id, id);
    }
    void addDriver(const std::string& id, const std::string& model) {
        const std::u16string version(id.begin(), id.end());
        sql().run("INSERT INTO driver (id, modelId, brandId, version, versionKey, comment, uploadDate, uploadedBy) "
                  "VALUES (?, ?, 'brand', ?, ?, x'', '', x'')",
                  id, model, version, nameKey(version));
    }
    // Deploys the model's driver, unless another one is given.
    void deploy(const std::string& id, const std::string& model, const std::u16string& locale,
                std::string driver = {}) {
        driver = driver.empty() ? "driver " + model : driver;
        sql().run("INSERT INTO driverDeployment (id, driverId, modelId, osNumber, locale, localeKey, comment, use, "
                  "install, installMethod) VALUES (?, ?, ?, 1, ?, ?, x'', 1, 1, 0)",
                  id, driver, model, locale, nameKey(locale));
    }
    void addConfiguration(const std::string& id, const std::string& model, const std::u16string& comment) {
        configurations().insert({.record = {.configId = id,
                                            .uploadedBy = u"Ines",
                                            .date = u"2014-03-05 17:04:09",
                                            .comment = comment,
                                            .configText = u"settings",
                                            .useCount = 0},
                                 .modelId = model});
    }

    std::string addPrinter(const std::u16string& name, const std::string& model) { return add(0, name, model, {}); }
    std::string addQueue(const std::u16string& name, const std::string& printer, const std::string& model = {}) {
        return add(1, name, model, printer);
    }
    std::string addFollowQueue(const std::u16string& name, const std::string& model) { return add(3, name, model, {}); }
    std::string addLocalPrinter(const std::u16string& name, const std::string& model) {
        return add(6, name, model, {});
    }

    // Makes a full change: loads the record and stores it with another model or name.
    void change(const std::string& id, const std::u16string& name, const std::string& model) {
        auto record = connection_.table<RecordTable>().find(id).value().record;
        record.name = name;
        record.modelId = model;
        RecordService(connection_).update({.record = record});
    }

    [[nodiscard]] std::vector<protocol::QueueConfigEntry> entries(const std::string& queue,
                                                                  const std::string& map = {}) {
        return all<protocol::QueueConfigEntry>(queues().list(queue, map));
    }
    // The configurations of the entries of a queue.
    [[nodiscard]] std::vector<std::string> used(const std::string& queue) {
        std::vector<std::string> ids;
        for (const auto& entry : entries(queue)) {
            ids.push_back(entry.configId);
        }
        return ids;
    }
    [[nodiscard]] std::vector<protocol::QueueConfigChoice> choices(const std::string& map) {
        return all<protocol::QueueConfigChoice>(configurations().listChoices(map));
    }
    [[nodiscard]] std::vector<protocol::ConfigurationRecord> list(const std::string& model) {
        return all<protocol::ConfigurationRecord>(configurations().list(model));
    }
    // The names of the queues that use a configuration.
    [[nodiscard]] std::vector<std::u16string> users(const std::string& configuration) {
        std::vector<std::u16string> names;
        for (auto& record : all<protocol::ConfigQueueRecord>(queues().listQueues(configuration))) {
            names.push_back(std::move(record.queueName));
        }
        return names;
    }

    [[nodiscard]] ConfigurationService service() { return ConfigurationService(connection_); }
    [[nodiscard]] ConfigurationTable& configurations() { return connection_.table<ConfigurationTable>(); }
    [[nodiscard]] QueueConfigurationTable& queues() { return connection_.table<QueueConfigurationTable>(); }
    [[nodiscard]] Statements& sql() { return connection_.table<Statements>(); }
    [[nodiscard]] int sorts() { return connection_.table<QueryPlans>().sorts(); }

private:
    std::string add(std::uint16_t recordType, const std::u16string& name, const std::string& model,
                    const std::string& printer) {
        protocol::PrinterRecord record;
        record.recordType = recordType;
        record.name = name;
        record.location = u"at " + name;
        record.modelId = model;
        record.regionId = recordType == protocol::recordType::localPrinter ? home_ : region_;
        return RecordService(connection_).create({.physicalPrinterId = printer, .record = record}).id;
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

    StoreConnection& connection_;
    std::int32_t region_ = 0;
    std::int32_t home_ = 0;
};

} // namespace server::test
