#include "server/Commands.h"
#include "server/commands/Handler.h"
#include "server/configurations/ConfigurationTable.h"
#include "server/estate/RecordService.h"
#include "server/estate/RegionTable.h"
#include "tests/server/drivers/CatalogueEstate.h"
#include "tests/server/support/RunningServer.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace test; // the words of requests
using support::hex;
using support::toHex;
using Texts = std::vector<std::u16string>;

// The server with the catalogue of CatalogueEstate and a queue of the model "m1".
class DriverServer : public testing::Test {
protected:
    DriverServer() {
        const auto connection = server.store().openConnection();
        const CatalogueEstate catalogue(*connection);
        firstOs = catalogue.firstOs;
        connection->change([&] {
            protocol::PrinterRecord record;
            record.name = u"P";
            record.modelId = "m1";
            record.regionId = connection->table<RegionTable>().insert(0, 0, u"North");
            const auto printer = RecordService(*connection).create({.physicalPrinterId = {}, .record = record}).id;
            record.recordType = protocol::recordType::queue;
            queue = RecordService(*connection).create({.physicalPrinterId = printer, .record = record}).id;
            StoredConfiguration draft;
            draft.record.configId = "c1";
            draft.record.comment = u"Draft";
            draft.modelId = "m1";
            connection->table<ConfigurationTable>().insert(draft);
            return true;
        });
        server.start();
    }

    // The records of a list, as whole messages.
    std::vector<test::Bytes> list(std::uint16_t opcode, const std::optional<test::Bytes>& fields) {
        auto messages = messagesOf(ask(server.port(), request(opcode, fields)));
        EXPECT_EQ(FieldCursor(messages.at(0)).number(2), messages.size() - 1);
        messages.erase(messages.begin());
        return messages;
    }
    std::string single(std::uint16_t opcode, const test::Bytes& fields) {
        const auto message = messagesOf(ask(server.port(), request(opcode, fields))).at(0);
        return toHex({message.begin() + 5, message.end()});
    }
    // Sends a change, and checks that nothing is answered.
    void change(std::uint16_t opcode, const test::Bytes& fields) {
        EXPECT_EQ(toHex(ask(server.port(), request(opcode, fields))), "") << opcode;
    }

    struct Model {
        std::string id;
        std::u16string name;
        std::uint32_t visible = 0;
    };
    std::vector<Model> models(std::uint8_t listKind, const std::string& parent) {
        std::vector<Model> models;
        for (const auto& message : list(5, u8(listKind) + str8(parent))) {
            FieldCursor cursor(message);
            auto& model = models.emplace_back();
            model.id = cursor.text8();
            model.name = cursor.text16();
            model.visible = cursor.number(1);
            EXPECT_TRUE(cursor.atEnd());
        }
        return models;
    }
    Texts names(std::uint8_t listKind, const std::string& parent) {
        Texts names;
        for (auto& model : models(listKind, parent)) {
            names.push_back(std::move(model.name));
        }
        return names;
    }
    std::size_t driverCount(const std::string& model) { return list(12, u8(3) + str8(model)).size(); }

    struct Deployment {
        std::u16string version;
        std::string id;
        std::string bytes; // use, install and method
    };
    std::vector<Deployment> deployments(const std::string& model, const std::string& driver = {}) {
        std::vector<Deployment> deployments;
        for (const auto& message : list(14, str8(model) + str8(driver))) {
            FieldCursor cursor(message);
            auto& deployment = deployments.emplace_back();
            deployment.version = cursor.text16();
            EXPECT_EQ(cursor.text16(), u"comment");
            deployment.id = cursor.text8();
            EXPECT_EQ(cursor.text8(), firstOs);
            EXPECT_EQ(cursor.text16(), u"Windows 10 ARM64");
            EXPECT_EQ(cursor.text16(), u"de");
            for (int number = 0; number < 3; ++number) {
                deployment.bytes += static_cast<char>('0' + cursor.number(1));
            }
            EXPECT_TRUE(cursor.atEnd());
        }
        return deployments;
    }
    void deploy(const std::string& driver, const std::string& model, const char* bytes = "01 01 00 00") {
        change(15, str8(driver) + str8(model) + str16(u"comment") + str16(u"de") + str8(firstOs) + hex(bytes));
    }

    RunningServer server;
    std::string firstOs;
    std::string queue;
};

TEST_F(DriverServer, listsBrandsAsIdAndName) {
    const auto brands = list(4, std::nullopt);
    ASSERT_EQ(brands.size(), 2U);
    EXPECT_EQ(toHex(brands[0]), "01 17 00 00 00 02 00 62 31 0C 00 48 00 61 00 6C 00 76 00 65 00 6B 00");
}

TEST_F(DriverServer, listsModelsAsIdNameAndWhetherTheyAreVisible) {
    const auto models = list(5, u8(0) + str8("b2"));
    ASSERT_EQ(models.size(), 1U);
    EXPECT_EQ(toHex(models[0]), "01 16 00 00 00 02 00 6D 33 0A 00 54 00 68 00 72 00 65 00 65 00 01");
    EXPECT_TRUE(list(5, u8(0) + str8("nobody")).empty());
    EXPECT_TRUE(list(5, u8(77) + str8("b2")).empty());
}

TEST_F(DriverServer, listsTheOperatingSystemsThatItKnowsFromTheStart) {
    const auto systems = list(11, std::nullopt);
    ASSERT_EQ(systems.size(), 13U);
    FieldCursor cursor(systems.at(5));
    EXPECT_EQ(cursor.text8().size(), 36U);
    EXPECT_EQ(cursor.text16(), u"Windows 7 x64");
    EXPECT_EQ(cursor.number(4), 6U);
    EXPECT_EQ(cursor.number(4), 1U);
    EXPECT_EQ(cursor.number(2), 64U);
    EXPECT_TRUE(cursor.atEnd());
}

TEST_F(DriverServer, listsDriversOfABrandAndOfAModelInFull) {
    const auto drivers = list(12, u8(3) + str8("m1"));
    ASSERT_EQ(drivers.size(), 1U);
    EXPECT_EQ(toHex(drivers[0]), "01 2F 00 00 00 02 00 64 31 04 00 64 00 31 00 02 00 43 00 "
                                 "13 00 32 30 31 34 2D 30 33 2D 30 35 20 31 37 3A 30 34 3A 30 39 "
                                 "04 00 4A 00 6F 00 00");
    EXPECT_EQ(list(12, u8(1) + str8("b1")).size(), 2U);
    EXPECT_TRUE(list(12, u8(0) + str8("b1")).empty());
}

TEST_F(DriverServer, listsDriversOfAModelShortly) {
    const auto drivers = list(12, u8(2) + str8("m1"));
    ASSERT_EQ(drivers.size(), 1U);
    EXPECT_EQ(toHex(drivers[0]), "01 13 00 00 00 02 00 64 31 04 00 64 00 31 00 02 00 43 00");
}

TEST_F(DriverServer, addsAModelAndRefusesASecondOfItsName) {
    change(46, str8("b2") + str16(u"Nine"));
    change(46, str8("b2") + str16(u"NINE"));
    change(46, str8("nobody") + str16(u"Ten"));
    EXPECT_EQ(names(0, "b2"), (Texts{u"Nine", u"Three"}));
}

TEST_F(DriverServer, hidesAndShowsAModel) {
    change(20, u8(0) + str8("m1"));
    EXPECT_EQ(models(0, "b1").at(0).visible, 0U);
    EXPECT_EQ(names(3, "b1"), Texts{u"Two"});
    change(20, u8(9) + str8("m1"));
    change(20, u8(1) + str8("nobody"));
    EXPECT_EQ(models(0, "b1").at(0).visible, 0U);
    change(20, u8(1) + str8("m1"));
    EXPECT_EQ(models(0, "b1").at(0).visible, 1U);
}

TEST_F(DriverServer, linksAndUnlinksAnAlternate) {
    change(48, str8("m1") + str8("m3"));
    change(48, str8("m1") + str8("m3"));
    change(48, str8("m1") + str8("m1"));
    change(48, str8("m1") + str8("nobody"));
    EXPECT_EQ(names(2, "m1"), Texts{u"Three"});
    change(49, str8("m1") + str8("m2"));
    EXPECT_EQ(names(2, "m1"), Texts{u"Three"});
    change(49, str8("m1") + str8("m3"));
    EXPECT_EQ(names(2, "m1"), Texts{});
}

TEST_F(DriverServer, addsTheBuiltInDriverOnce) {
    change(47, str8("m1"));
    change(47, str8("m1"));
    change(47, str8("nobody"));
    EXPECT_EQ(driverCount("m1"), 2U);
}

TEST_F(DriverServer, setsAndTellsTheOctetOrderOfAModel) {
    change(75, u32(2) + str8("m1"));
    change(75, u32(3) + str8("m1"));
    change(75, u32(1) + str8("nobody"));
    EXPECT_EQ(single(77, str8("m1")), "02 00 00 00");
    EXPECT_EQ(single(77, str8("nobody")), "00 00 00 00");
}

TEST_F(DriverServer, deploysADriverAndReplacesItByAnother) {
    change(48, str8("m1") + str8("m2"));
    deploy("d1", "m1", "01 01 02 00");
    ASSERT_EQ(deployments("m1").size(), 1U);
    EXPECT_EQ(deployments("m1")[0].version, u"d1");
    EXPECT_EQ(deployments("m1")[0].bytes, "112");
    deploy("d2", "m1");
    ASSERT_EQ(deployments("m1").size(), 1U);
    EXPECT_EQ(deployments("m1")[0].version, u"d2");
    EXPECT_TRUE(deployments("m1", "d1").empty());
    EXPECT_EQ(deployments("m1", "d2").size(), 1U);
}

TEST_F(DriverServer, deploysNothingThatIsRefused) {
    deploy("d2", "m1");
    deploy("nobody", "m1");
    deploy("d1", "m1", "01 01 03 00");
    deploy("d1", "m1", "02 01 00 00");
    change(15, str8("d1") + str8("m1") + str16(u"") + str16(u"de") + str8("no system") + hex("01 01 00 00"));
    EXPECT_TRUE(deployments("m1").empty());
    EXPECT_TRUE(deployments("m2").empty());
}

TEST_F(DriverServer, changesADeploymentByFourBytesAndRemovesItByTenZeros) {
    deploy("d1", "m1");
    const auto id = deployments("m1").at(0).id;
    change(16, str8(id) + hex("01 00 02 00"));
    EXPECT_EQ(deployments("m1").at(0).bytes, "102");
    change(16, str8(id) + hex("00 00 00 00"));
    EXPECT_EQ(deployments("m1").at(0).bytes, "000");
    change(16, str8(id) + hex("00 00 03 00"));
    EXPECT_EQ(deployments("m1").at(0).bytes, "000");
    change(16, str8(id) + hex("00 00 00 00 00 00 00 00 00 00"));
    EXPECT_TRUE(deployments("m1").empty());
    change(16, str8(id) + hex("00 00 00 00 00 00 00 00 00 00"));
    change(16, str8(id) + hex("01 01 00 00"));
    EXPECT_TRUE(deployments("m1").empty());
}

TEST_F(DriverServer, neitherNineZerosNorTenBytesOfWhichOneIsNoneRemove) {
    deploy("d1", "m1");
    const auto id = deployments("m1").at(0).id;
    change(16, str8(id) + hex("00 00 00 00 00 00 00 00 00"));
    EXPECT_EQ(deployments("m1").size(), 1U);
    change(16, str8(id) + hex("00 00 00 00 00 00 00 00 00 01"));
    EXPECT_EQ(deployments("m1").size(), 1U);
    change(16, str8(id) + hex("01 00 00")); // too short for either
    EXPECT_EQ(deployments("m1").at(0).bytes, "000");
}

TEST_F(DriverServer, deletesADriverUnlessItIsInUse) {
    deploy("d1", "m1");
    change(13, str8("d1"));
    EXPECT_EQ(driverCount("m1"), 1U);
    change(16, str8(deployments("m1").at(0).id) + hex("00 00 00 00 00 00 00 00 00 00"));
    change(13, str8("d1"));
    EXPECT_EQ(driverCount("m1"), 0U);
    change(13, str8("d1"));
}

TEST_F(DriverServer, countsQueuesWithConfigurationsThroughReplacements) {
    const auto count = [&] { return single(80, str8("m1") + str8(firstOs) + str16(u"de")); };
    EXPECT_EQ(count(), "00 00 00 00 01 00 00 00");
    deploy("d1", "m1");
    change(19, str8(queue) + str8(deployments("m1").at(0).id) + str8("c1"));
    EXPECT_EQ(count(), "01 00 00 00 01 00 00 00");
    EXPECT_EQ(single(80, str8("m1") + str8(firstOs) + str16(u"fr")), "00 00 00 00 01 00 00 00");
    EXPECT_EQ(single(80, str8("m2") + str8(firstOs) + str16(u"de")), "00 00 00 00 00 00 00 00");
    deploy("d1", "m1", "01 01 00 01");
    EXPECT_EQ(count(), "01 00 00 00 01 00 00 00");
    deploy("d1", "m1", "01 01 00 00");
    EXPECT_EQ(count(), "00 00 00 00 01 00 00 00");
}

TEST_F(DriverServer, closesTheConnectionOfARequestThatIsTooShort) {
    for (const auto opcode :
         std::initializer_list<std::uint16_t>{5, 12, 13, 14, 15, 16, 20, 46, 47, 48, 49, 75, 77, 80}) {
        EXPECT_EQ(toHex(ask(server.port(), request(opcode, hex("01")))), "") << opcode;
        EXPECT_EQ(toHex(ask(server.port(), request(opcode, std::nullopt))), "") << opcode;
    }
    EXPECT_EQ(list(4, std::nullopt).size(), 2U);
}

TEST(DriverHandlers, eachCommandEitherReadsOrChanges) {
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{4, 5, 11, 12, 14, 77, 80}) {
        EXPECT_NE(commands().find(opcode, {})->answer, nullptr) << opcode;
    }
    for (const std::uint16_t opcode : std::initializer_list<std::uint16_t>{13, 15, 16, 20, 46, 47, 48, 49, 75}) {
        EXPECT_NE(commands().find(opcode, {})->prepare, nullptr) << opcode;
    }
}

} // namespace
} // namespace server
