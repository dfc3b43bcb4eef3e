#include "server/drivers/DriverService.h"

#include "protocol/drivers/Driver.h"
#include "protocol/drivers/DriverBrand.h"
#include "tests/server/drivers/CatalogueEstate.h"
#include "tests/server/support/TestEstate.h"

namespace server {
namespace {

using protocol::DriverRecord;
using protocol::StatusReply;
using Names = test::CatalogueEstate::Names;

class DriverServiceTest : public testing::Test {
protected:
    std::vector<DriverRecord> driversOf(const std::string& modelId) {
        return catalogue.all<DriverRecord>(catalogue.drivers().listOfModel(modelId));
    }
    std::u16string textOf(const StatusReply& reply) {
        EXPECT_EQ(reply.caption, u"Driver catalogue not changed");
        EXPECT_EQ(reply.style, 0x30U);
        return reply.text;
    }

    test::TestEstate place;
    test::CatalogueEstate catalogue{place.connection()};
};

TEST_F(DriverServiceTest, brandsAreListedByName) {
    catalogue.models().insertBrand("b0", u"ivory");
    Names names;
    for (const auto& brand : catalogue.all<protocol::DriverBrandRecord>(catalogue.models().listBrands())) {
        names.push_back(brand.name);
    }
    EXPECT_EQ(names, (Names{u"Halvek", u"ivory", u"Mirado"}));
}

TEST_F(DriverServiceTest, aNewModelIsVisibleAndGetsAnId) {
    EXPECT_TRUE(isDone(catalogue.service().addModel({.brandId = "b1", .name = u"Nine"})));
    const auto models = catalogue.all<protocol::DriverModelRecord>(catalogue.models().list(0, "b1"));
    ASSERT_EQ(models.size(), 3U);
    EXPECT_EQ(models[0].name, u"Nine");
    EXPECT_TRUE(models[0].visible);
    EXPECT_EQ(models[0].modelId.size(), 36U);
}

TEST_F(DriverServiceTest, aModelWithoutABrandOrANameOrWithATakenOneIsRefused) {
    const auto add = [&](const char* brand, std::u16string name) {
        return textOf(catalogue.service().addModel({.brandId = brand, .name = std::move(name)}));
    };
    EXPECT_EQ(add("b9", u"Nine"), u"The brand does not exist any more.");
    EXPECT_EQ(add("b1", u""), u"A model needs a name.");
    EXPECT_EQ(add("b1", {u'\0', u'x'}), u"A model needs a name.");
    EXPECT_EQ(add("b1", u"ONE"), u"There is a model named \"ONE\" of this brand already.");
    EXPECT_EQ(catalogue.modelNames(0, "b1"), (Names{u"One", u"Two"}));
    EXPECT_TRUE(isDone(catalogue.service().addModel({.brandId = "b2", .name = u"One"})));
}

TEST_F(DriverServiceTest, aModelNameThatNoConsoleCouldReceiveIsRefused) {
    const std::size_t room = (65535 - 5 - 2 - 36 - 2 - 1) / 2;
    EXPECT_EQ(textOf(catalogue.service().addModel({.brandId = "b1", .name = std::u16string(room + 1, u'x')})),
              u"The name of the model is too long.");
    EXPECT_TRUE(isDone(catalogue.service().addModel({.brandId = "b1", .name = std::u16string(room, u'x')})));
}

TEST_F(DriverServiceTest, aHiddenModelStaysInTheListForTheTree) {
    EXPECT_TRUE(isDone(catalogue.service().setVisible({.visible = 0, .modelId = "m1"})));
    const auto models = catalogue.all<protocol::DriverModelRecord>(catalogue.models().list(0, "b1"));
    ASSERT_EQ(models.size(), 2U);
    EXPECT_FALSE(models[0].visible);
    EXPECT_TRUE(models[1].visible);
}

TEST_F(DriverServiceTest, aHiddenModelIsNotOfferedForChoice) {
    catalogue.service().setVisible({.visible = '0', .modelId = "m1"});
    EXPECT_EQ(catalogue.modelNames(1, "b1"), Names{u"Two"});
    EXPECT_EQ(catalogue.modelNames(3, "b1"), Names{u"Two"});
    catalogue.service().setVisible({.visible = '1', .modelId = "m1"});
    EXPECT_EQ(catalogue.modelNames(1, "b1"), (Names{u"One", u"Two"}));
    EXPECT_EQ(catalogue.modelNames(3, "b1"), (Names{u"One", u"Two"}));
}

TEST_F(DriverServiceTest, aHiddenModelThatAPrinterHasIsOfferedToDialogsSoThatThePrinterKeepsIt) {
    auto record = place.record(place.addPrinter(u"P", place.addRegion(u"North")));
    record.modelId = "m1";
    place.recordService().update({.record = record});
    catalogue.service().setVisible({.visible = 0, .modelId = "m1"});
    EXPECT_EQ(catalogue.modelNames(1, "b1"), (Names{u"One", u"Two"}));
    EXPECT_EQ(catalogue.modelNames(3, "b1"), Names{u"Two"});
}

TEST_F(DriverServiceTest, aVisibilityThatIsNoneAndAnUnknownModelAreRefused) {
    EXPECT_EQ(textOf(catalogue.service().setVisible({.visible = 2, .modelId = "m1"})),
              u"A model must be either visible or hidden.");
    EXPECT_EQ(textOf(catalogue.service().setVisible({.visible = 0, .modelId = "m9"})),
              u"The model does not exist any more.");
}

TEST_F(DriverServiceTest, anUnknownKindOfListSelectsNoModels) {
    EXPECT_EQ(catalogue.modelNames(4, "b1"), Names{});
    EXPECT_EQ(catalogue.modelNames(0, "m1"), Names{});
}

TEST_F(DriverServiceTest, theOctetOrderOfAModelIsKept) {
    EXPECT_TRUE(isDone(catalogue.service().setOctetOrder({.octetOrder = 2, .modelId = "m1"})));
    EXPECT_EQ(textOf(catalogue.service().setOctetOrder({.octetOrder = 3, .modelId = "m1"})),
              u"There is no such octet order.");
    EXPECT_FALSE(isDone(catalogue.service().setOctetOrder({.octetOrder = 1, .modelId = "m9"})));
    EXPECT_EQ(catalogue.models().octetOrder("m1"), 2U);
    EXPECT_EQ(catalogue.models().octetOrder("m2"), 0U);
    EXPECT_EQ(catalogue.models().octetOrder("m9"), std::nullopt);
}

TEST_F(DriverServiceTest, alternatesAreListedByNameWhateverTheirBrandAndThoughTheyAreHidden) {
    EXPECT_TRUE(isDone(catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m2"})));
    EXPECT_TRUE(isDone(catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m3"})));
    catalogue.service().setVisible({.visible = 0, .modelId = "m2"});
    EXPECT_EQ(catalogue.modelNames(2, "m1"), (Names{u"Three", u"Two"}));
    EXPECT_EQ(catalogue.modelNames(2, "m2"), Names{});
}

TEST_F(DriverServiceTest, anAlternateIsLinkedOnceAndNeverToItself) {
    EXPECT_EQ(textOf(catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m1"})),
              u"A model cannot be an alternate of itself.");
    catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m2"});
    EXPECT_EQ(textOf(catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m2"})),
              u"\"Two\" is an alternate of \"One\" already.");
    EXPECT_FALSE(isDone(catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m9"})));
    EXPECT_FALSE(isDone(catalogue.service().addAlternate({.modelId = "m9", .alternateModelId = "m1"})));
    EXPECT_EQ(catalogue.modelNames(2, "m1"), Names{u"Two"});
    EXPECT_TRUE(isDone(catalogue.service().addAlternate({.modelId = "m2", .alternateModelId = "m1"})));
}

TEST_F(DriverServiceTest, anAlternateIsRemovedFromItsModelAlone) {
    catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m2"});
    catalogue.service().addAlternate({.modelId = "m3", .alternateModelId = "m2"});
    EXPECT_TRUE(isDone(catalogue.service().removeAlternate({.modelId = "m1", .alternateModelId = "m2"})));
    EXPECT_EQ(textOf(catalogue.service().removeAlternate({.modelId = "m1", .alternateModelId = "m2"})),
              u"The alternate was removed in the meantime.");
    EXPECT_EQ(catalogue.modelNames(2, "m3"), Names{u"Two"});
}

TEST_F(DriverServiceTest, driversAreListedByVersionOfAModelAndOfAllModelsOfABrand) {
    catalogue.addDriver("D0", "m2");
    const auto ids = [](const std::vector<DriverRecord>& drivers) {
        std::string all;
        for (const auto& driver : drivers) {
            all += driver.driverId + " ";
        }
        return all;
    };
    EXPECT_EQ(ids(driversOf("m2")), "D0 d2 ");
    EXPECT_EQ(ids(catalogue.all<DriverRecord>(catalogue.drivers().listOfBrand("b1"))), "D0 d1 d2 ");
    EXPECT_EQ(ids(driversOf("b1")), "");
}

TEST_F(DriverServiceTest, aDriverIsListedAsItWasStoredAndShortWithThreeFields) {
    EXPECT_EQ(driversOf("m1").at(0), (DriverRecord{.driverId = "d1",
                                                   .version = u"d1",
                                                   .comment = u"C",
                                                   .uploadDate = "2014-03-05 17:04:09",
                                                   .uploadedBy = u"Jo",
                                                   .inUse = 0}));
    EXPECT_EQ(catalogue.all<protocol::ShortDriverRecord>(catalogue.drivers().listShort("m1")).at(0),
              (protocol::ShortDriverRecord{.driverId = "d1", .version = u"d1", .comment = u"C"}));
}

TEST_F(DriverServiceTest, aDriverIsInUseWhileOneOfItsDeploymentsIs) {
    const auto deployment = catalogue.deploy("d1", "m1");
    EXPECT_EQ(driversOf("m1").at(0).inUse, 1);
    EXPECT_EQ(driversOf("m2").at(0).inUse, 0);
    catalogue.deploymentService().update({.deploymentId = deployment, .use = 0});
    EXPECT_EQ(driversOf("m1").at(0).inUse, 0);
}

TEST_F(DriverServiceTest, aDriverInUseIsNotDeleted) {
    catalogue.deploy("d1", "m1");
    EXPECT_EQ(textOf(catalogue.service().remove({.driverId = "d1"})),
              u"The driver \"d1\" is deployed. Please remove its deployments first.");
    EXPECT_EQ(driversOf("m1").size(), 1U);
    EXPECT_EQ(catalogue.deployed("m1").size(), 1U);
}

TEST_F(DriverServiceTest, aDeletedDriverTakesDeploymentsThatAreNotInUseWithIt) {
    catalogue.deploymentService().update({.deploymentId = catalogue.deploy("d1", "m1"), .use = 0});
    EXPECT_TRUE(isDone(catalogue.service().remove({.driverId = "d1"})));
    EXPECT_TRUE(driversOf("m1").empty());
    EXPECT_TRUE(catalogue.deployed("m1").empty());
    EXPECT_EQ(textOf(catalogue.service().remove({.driverId = "d1"})), u"The driver was deleted in the meantime.");
}

TEST_F(DriverServiceTest, aModelGetsTheBuiltInDriverOnce) {
    EXPECT_TRUE(isDone(catalogue.service().addBuiltIn({.modelId = "m1"})));
    EXPECT_EQ(textOf(catalogue.service().addBuiltIn({.modelId = "m1"})), u"\"One\" has the built-in driver already.");
    EXPECT_FALSE(isDone(catalogue.service().addBuiltIn({.modelId = "m9"})));
    const auto drivers = driversOf("m1");
    ASSERT_EQ(drivers.size(), 2U);
    EXPECT_EQ(drivers[0].version, u"Built-in driver (" + wire::toWide(drivers[0].uploadDate) + u")");
    EXPECT_EQ(drivers[0].uploadDate.size(), 23U);
}

TEST_F(DriverServiceTest, aDeletedBuiltInDriverCanBeAddedAgain) {
    catalogue.service().addBuiltIn({.modelId = "m1"});
    EXPECT_TRUE(isDone(catalogue.service().remove({.driverId = driversOf("m1").at(0).driverId})));
    EXPECT_TRUE(isDone(catalogue.service().addBuiltIn({.modelId = "m1"})));
}

TEST_F(DriverServiceTest, aPrinterIsNamedAfterItsModelOfTheCatalogue) {
    protocol::PrinterRecord record;
    record.name = u"P";
    record.regionId = place.addRegion(u"North");
    record.modelName = u"typed";
    record.modelId = "m1";
    record.id = place.recordService().create({.physicalPrinterId = {}, .record = record}).id;
    EXPECT_EQ(place.record(record.id).modelName, u"One");
    record.modelId = "m3";
    place.recordService().update({.record = record});
    EXPECT_EQ(place.record(record.id).modelName, u"Three");
}

TEST_F(DriverServiceTest, aNameWithoutAModelOfTheCatalogueStaysAsItCame) {
    protocol::PrinterRecord record;
    record.name = u"P";
    record.regionId = place.addRegion(u"North");
    record.modelName = u"typed";
    EXPECT_EQ(place.record(place.recordService().create({.physicalPrinterId = {}, .record = record}).id).modelName,
              u"typed");
}

} // namespace
} // namespace server
