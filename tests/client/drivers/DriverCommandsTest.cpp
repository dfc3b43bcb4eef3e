#include "client/ConnectFailed.h"
#include "tests/client/ClientTest.h"
#include "tests/support/Environment.h"

namespace client {
namespace {

using protocol::CountDeploymentConfigsReply;
using protocol::DriverBrandRecord;
using protocol::DriverDeploymentRecord;
using protocol::DriverModelRecord;
using protocol::OperatingSystemRecord;
namespace driverList = protocol::driverList;
namespace modelList = protocol::driverModelList;

class Drivers : public ClientTest {
protected:
    // A driver with this one-letter id.
    static Bytes driver(const char* id) {
        return hex("01 00") + hex(id) +
               hex("2A 00 28 00 32 00 30 00 31 00 34 00 2D 00 30 00 33 00 2D 00 30 00 35 00 20 00 31 00 37 00 3A 00 "
                   "30 00 34 00 3A 00 30 00 39 00 29 00"
                   "02 00 43 00"
                   "13 00 32 30 31 34 2D 30 33 2D 30 35 20 31 37 3A 30 34 3A 30 39"
                   "04 00 4A 00 6F 00  31");
    }
    static Bytes pair(const char* id) { return hex("01 00") + hex(id) + hex("02 00 4E 00"); }
    static Bytes system(const char* id) { return pair(id) + hex("01 00 00 00  FE FF FF FF  40 00"); }
    static Bytes deployment(const char* id) {
        return hex("02 00 32 00  02 00 43 00  01 00") + hex(id) +
               hex("01 00 6F  02 00 57 00  04 00 64 00 65 00 01 00 02");
    }

    // All ids that the operation returns, in order.
    template <class R>
    static std::string handedOut(CQVXAdminClass& client, bool (DriverCommands::*next)(R&),
                                 std::type_identity_t<std::string R::*> id) {
        std::string ids;
        for (R record; (client.*next)(record);) {
            ids += record.*id;
        }
        return ids;
    }

    support::EnvironmentVariable everything{"LC_ALL", "C"};
};

TEST_F(Drivers, brandsAreAskedForWithoutFieldsAndHandedOutLastFirst) {
    answer({countedList({pair("61"), pair("62")})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listDriverBrands());

    EXPECT_EQ(received(), frame({commandMessage(4, 1)}));
    EXPECT_EQ(client.driverBrands(), (std::vector<DriverBrandRecord>{{"a", u"N"}, {"b", u"N"}}));
    EXPECT_EQ(handedOut(client, &DriverCommands::nextDriverBrand, &DriverBrandRecord::brandId), "ba");
    EXPECT_TRUE(client.driverBrands().empty());
}

TEST_F(Drivers, modelsComeInWireOrder) {
    answer({countedList({pair("61") + hex("01"), pair("62") + hex("00")})});

    std::vector<DriverModelRecord> models;

    EXPECT_TRUE(CQVXAdminClass(settings).listDriverModels(modelList::forAlternates, "b1", models));

    EXPECT_EQ(received(), request(5, "03 02 00 62 31"));
    EXPECT_EQ(models, (std::vector<DriverModelRecord>{{"a", u"N", true}, {"b", u"N", false}}));
}

TEST_F(Drivers, modelsAreAskedForByKindOfList) {
    answer({countedList({}), countedList({}), countedList({})});
    CQVXAdminClass client(settings);
    std::vector<DriverModelRecord> models;

    EXPECT_TRUE(client.listDriverModels(modelList::ofBrand, "b", models));
    EXPECT_TRUE(client.listDriverModels(modelList::forDialogs, "b", models));
    EXPECT_TRUE(client.listDriverModels(modelList::alternates, "m", models));
    EXPECT_TRUE(models.empty());

    EXPECT_EQ(received(0), request(5, "00 01 00 62"));
    EXPECT_EQ(received(1), request(5, "01 01 00 62"));
    EXPECT_EQ(received(2), request(5, "02 01 00 6D"));
}

TEST_F(Drivers, modelsOfAReplyThatBreaksOffThrow) {
    const Bytes whole = countedList({pair("61") + hex("01"), pair("62") + hex("01")});
    serve({[whole](Connection& connection) {
        connection.expectFrame();
        connection.send({whole.begin(), whole.end() - 1});
    }});
    CQVXAdminClass client(settings);
    std::vector<DriverModelRecord> models;

    EXPECT_EQ(thrownBy([&] { static_cast<void>(client.listDriverModels(0, "b", models)); }), "failed to get messages");
}

TEST_F(Drivers, operatingSystemsAreAskedForWithoutFieldsAndHandedOutLastFirst) {
    answer({countedList({system("61"), system("62")})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listOperatingSystems());

    EXPECT_EQ(received(), frame({commandMessage(11, 1)}));
    EXPECT_EQ(client.operatingSystems().at(0), (OperatingSystemRecord{"a", u"N", 1, -2, 64}));
    EXPECT_EQ(handedOut(client, &DriverCommands::nextOperatingSystem, &OperatingSystemRecord::osId), "ba");
}

TEST_F(Drivers, areHandedOutOneAtATimeInReverseWireOrder) {
    answer({countedList({driver("61"), driver("62"), driver("63")})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listDrivers(driverList::ofModel, "m1"));

    EXPECT_EQ(received(), request(12, "03 02 00 6D 31"));
    EXPECT_EQ(handedOut(client, &DriverCommands::nextDriver, &ListedDriver::driverId), "cba");
}

TEST_F(Drivers, comeWithTheirDatesInLocalFormAndTheDateOfTheServerToSortBy) {
    answer({countedList({driver("61")})});
    CQVXAdminClass client(settings);
    ListedDriver record;

    EXPECT_TRUE(client.listDrivers(driverList::ofBrand, "b1"));
    EXPECT_TRUE(client.nextDriver(record));

    EXPECT_EQ(received(), request(12, "01 02 00 62 31"));
    EXPECT_EQ(record, (ListedDriver{{.driverId = "a",
                                     .version = u"(03/05/14 17:04:09)",
                                     .comment = u"C",
                                     .uploadDate = "2014-03-05 17:04:09",
                                     .uploadedBy = u"Jo",
                                     .inUse = '1'},
                                    u"03/05/14 17:04:09"}));
    EXPECT_FALSE(client.nextDriver(record));
}

TEST_F(Drivers, ofAShortListAreReadAndNotHandedOut) {
    answer({countedList({driver("61")}), countedList({pair("61") + hex("02 00 43 00")})});
    CQVXAdminClass client(settings);
    ListedDriver record;
    client.listDrivers(driverList::ofModel, "m1");

    EXPECT_TRUE(client.listDrivers(driverList::shortOfModel, "m1"));

    EXPECT_EQ(received(1), request(12, "02 02 00 6D 31"));
    EXPECT_FALSE(client.nextDriver(record));
    EXPECT_EQ(observer.ended.at(1).records, 1U);
}

TEST_F(Drivers, aReplyWithACountOfZeroYieldsNoDriversAndNoError) {
    answer({countedList({})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listDrivers(driverList::ofModel, "m1"));

    EXPECT_TRUE(client.drivers().empty());
    EXPECT_EQ(observer.ended.at(0).outcome, CommandOutcome::done);
}

TEST_F(Drivers, aListThatBreaksOffHoldsWhatCameAndHandsNothingOut) {
    const Bytes whole = countedList({driver("61"), driver("62")});
    serve({[whole](Connection& connection) {
        connection.expectFrame();
        connection.send({whole.begin(), whole.end() - 1});
    }});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listDrivers(driverList::ofModel, "m1"));

    ASSERT_EQ(client.drivers().size(), 1U);
    EXPECT_EQ(client.drivers().at(0).uploadText, u"03/05/14 17:04:09");
    ListedDriver record;
    EXPECT_EQ(thrownBy([&] { client.nextDriver(record); }), "invalid vector<T> subscript");
}

TEST_F(Drivers, aRecordThatIsTooShortThrowsAndLeavesNothing) {
    answer({countedList({driver("61"), hex("00 00")})});
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { client.listDrivers(driverList::ofModel, "m1"); }), "plain: Reading outside scope");
    EXPECT_TRUE(client.drivers().empty());
}

TEST_F(Drivers, deploymentsOfADriverAndOfAllDriversOfAModelAreHandedOutLastFirst) {
    answer({countedList({deployment("61"), deployment("62")}), countedList({})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listDriverDeployments("m1", "d1"));
    EXPECT_EQ(client.driverDeployments().at(0), (DriverDeploymentRecord{.version = u"2",
                                                                        .comment = u"C",
                                                                        .deploymentId = "a",
                                                                        .osId = "o",
                                                                        .osName = u"W",
                                                                        .locale = u"de",
                                                                        .use = 1,
                                                                        .install = 0,
                                                                        .installMethod = 2}));
    EXPECT_EQ(handedOut(client, &DriverCommands::nextDriverDeployment, &DriverDeploymentRecord::deploymentId), "ba");
    EXPECT_TRUE(client.listDriverDeployments("m1"));

    EXPECT_EQ(received(0), request(14, "02 00 6D 31 02 00 64 31"));
    EXPECT_EQ(received(1), request(14, "02 00 6D 31 00 00"));
}

TEST_F(Drivers, areDeployedWithAllTheirFields) {
    answer({Bytes{}});

    EXPECT_TRUE(CQVXAdminClass(settings).addDriverDeployment({.driverId = "d1",
                                                              .modelId = "m1",
                                                              .comment = u"C",
                                                              .locale = u"de",
                                                              .osId = "o1",
                                                              .install = 1,
                                                              .installMethod = protocol::installMethod::superQuiet,
                                                              .keepConfig = 1}));

    EXPECT_EQ(received(), request(15, "02 00 64 31 02 00 6D 31 02 00 43 00 04 00 64 00 65 00 02 00 6F 31 01 01 01 01"));
}

TEST_F(Drivers, aChangedDeploymentCarriesFourBytesAndARemovedOneTenZeroBytes) {
    answer({Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.updateDriverDeployment({.deploymentId = "x1", .use = 1, .install = 1, .installMethod = 2}));
    EXPECT_TRUE(client.removeDriverDeployment("x1"));

    EXPECT_EQ(received(0), request(16, "02 00 78 31 01 01 02 00"));
    EXPECT_EQ(received(1), request(16, "02 00 78 31 00 00 00 00 00 00 00 00 00 00"));
}

TEST_F(Drivers, configurationsOfADeploymentAreCounted) {
    answer({frame({dataMessage(hex("03 00 00 00 02 01 00 00"))})});
    CountDeploymentConfigsReply counts;

    EXPECT_TRUE(CQVXAdminClass(settings).countDeploymentConfigs("m1", "o1", u"de", counts));

    EXPECT_EQ(received(), request(80, "02 00 6D 31 02 00 6F 31 04 00 64 00 65 00"));
    EXPECT_EQ(counts, (CountDeploymentConfigsReply{.queuesWithConfigs = 3, .totalQueues = 258}));
}

TEST_F(Drivers, bothCountsAreZeroWithoutAnAnswer) {
    CountDeploymentConfigsReply counts{.queuesWithConfigs = 1, .totalQueues = 2};

    EXPECT_FALSE(CQVXAdminClass(settings).countDeploymentConfigs("m1", "o1", u"de", counts));

    EXPECT_EQ(counts, CountDeploymentConfigsReply{});
}

TEST_F(Drivers, modelsAreShownAndHidden) {
    answer({Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.setDriverModelVisible("m1", true));
    EXPECT_TRUE(client.setDriverModelVisible("m1", false));

    EXPECT_EQ(received(0), request(20, "01 02 00 6D 31"));
    EXPECT_EQ(received(1), request(20, "00 02 00 6D 31"));
}

TEST_F(Drivers, theCatalogueIsChangedByShortCommands) {
    answer(std::vector<Bytes>(5));
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.deleteDriver("d1"));
    EXPECT_TRUE(client.addDriverModel("b1", u"Fo"));
    EXPECT_TRUE(client.addBuiltInDriver("m1"));
    EXPECT_TRUE(client.addAlternateDriver("m1", "m2"));
    EXPECT_TRUE(client.removeAlternateDriver("m1", "m2"));

    EXPECT_EQ(received(0), request(13, "02 00 64 31"));
    EXPECT_EQ(received(1), request(46, "02 00 62 31 04 00 46 00 6F 00"));
    EXPECT_EQ(received(2), request(47, "02 00 6D 31"));
    EXPECT_EQ(received(3), request(48, "02 00 6D 31 02 00 6D 32"));
    EXPECT_EQ(received(4), request(49, "02 00 6D 31 02 00 6D 32"));
    EXPECT_EQ(observer.ended.at(1).summary, "Fo");
}

TEST_F(Drivers, theOctetOrderOfAModelIsSetAndRead) {
    answer({Bytes{}, frame({dataMessage(hex("02 00 00 00"))})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.setModelOctetOrder("m1", 1));
    EXPECT_EQ(client.getModelOctetOrder("m1"), 2U);

    EXPECT_EQ(received(0), request(75, "01 00 00 00 02 00 6D 31"));
    EXPECT_EQ(received(1), request(77, "02 00 6D 31"));
}

TEST_F(Drivers, withoutAServerEachCommandIsFalseAndListsAreEmpty) {
    CQVXAdminClass client(settings);

    EXPECT_FALSE(client.listDriverBrands());
    EXPECT_FALSE(client.listOperatingSystems());
    EXPECT_FALSE(client.listDrivers(driverList::ofModel, "m1"));
    EXPECT_FALSE(client.listDrivers(driverList::shortOfModel, "m1"));
    EXPECT_FALSE(client.listDriverDeployments("m1"));
    EXPECT_FALSE(client.deleteDriver("d1"));
    EXPECT_FALSE(client.addDriverDeployment({}));
    EXPECT_FALSE(client.updateDriverDeployment({}));
    EXPECT_FALSE(client.removeDriverDeployment("x1"));
    EXPECT_FALSE(client.setDriverModelVisible("m1", true));
    EXPECT_FALSE(client.addDriverModel("b1", u"F"));
    EXPECT_FALSE(client.addBuiltInDriver("m1"));
    EXPECT_FALSE(client.addAlternateDriver("m1", "m2"));
    EXPECT_FALSE(client.removeAlternateDriver("m1", "m2"));
    EXPECT_FALSE(client.setModelOctetOrder("m1", 1));
    EXPECT_EQ(client.getModelOctetOrder("m1"), std::nullopt);
    EXPECT_TRUE(client.driverBrands().empty());
}

TEST_F(Drivers, modelsWithoutAServerThrow) {
    CQVXAdminClass client(settings);
    std::vector<DriverModelRecord> models;

    EXPECT_THROW(static_cast<void>(client.listDriverModels(0, "b1", models)), ConnectFailed);
}

} // namespace
} // namespace client
