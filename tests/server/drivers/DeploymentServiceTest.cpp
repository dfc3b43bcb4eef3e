#include "server/drivers/DeploymentService.h"

#include "server/configurations/ConfigurationTable.h"
#include "tests/server/drivers/CatalogueEstate.h"
#include "tests/server/support/TestEstate.h"

#include <tuple>

namespace server {
namespace {

using protocol::DriverDeploymentRecord;
using protocol::StatusReply;

class DeploymentServiceTest : public testing::Test {
protected:
    std::u16string textOf(const StatusReply& reply) {
        EXPECT_EQ(reply.caption, u"Deployment not changed");
        EXPECT_EQ(reply.style, 0x30U);
        return reply.text;
    }
    std::u16string refusedAdd(const protocol::AddDriverDeploymentRequest& request) {
        return textOf(catalogue.deploymentService().add(request));
    }
    // A queue of the model that uses a configuration with the deployment.
    void useConfiguration(const std::string& deploymentId) {
        auto& configurations = place.connection().table<ConfigurationTable>();
        StoredConfiguration draft;
        draft.record.configId = "c";
        draft.record.comment = u"Draft";
        draft.modelId = "m1";
        configurations.insert(draft);
        const auto printer = place.addPrinter(u"P", place.addRegion(u"North"));
        auto record = place.record(printer);
        record.modelId = "m1";
        place.recordService().update({.record = record});
        place.connection().table<QueueConfigurationTable>().put(place.addQueue(u"Q", printer), deploymentId, "c");
        ASSERT_EQ(usersOf(deploymentId), 1U);
    }
    std::uint32_t usersOf(const std::string& deploymentId) {
        return place.connection().table<QueueConfigurationTable>().queuesWithConfiguration(deploymentId);
    }

    test::TestEstate place;
    test::CatalogueEstate catalogue{place.connection()};
};

TEST_F(DeploymentServiceTest, areListedByOperatingSystemAndLocaleWithTheWordsOfTheirDriver) {
    auto request = catalogue.request("d1", "m1", u"sv");
    request.install = 0;
    request.installMethod = 2;
    const auto swedish = catalogue.deploy(request);
    catalogue.deploy("d1", "m1", u"DE");
    request.osId = catalogue.secondOs;
    request.locale = u"";
    catalogue.deploy(request);
    const auto deployed = catalogue.deployed("m1");
    ASSERT_EQ(deployed.size(), 3U);
    EXPECT_EQ(deployed[0].locale, u"DE");
    EXPECT_EQ(deployed[1], (DriverDeploymentRecord{.version = u"d1",
                                                   .comment = u"comment",
                                                   .deploymentId = swedish,
                                                   .osId = catalogue.firstOs,
                                                   .osName = u"Windows 10 ARM64",
                                                   .locale = u"sv",
                                                   .use = 1,
                                                   .install = 0,
                                                   .installMethod = 2}));
    EXPECT_EQ(deployed[2].osId, catalogue.secondOs);
}

TEST_F(DeploymentServiceTest, ofOneDriverAreListedForTheModelAlone) {
    catalogue.addDriver("d4", "m1");
    catalogue.service().addAlternate({.modelId = "m2", .alternateModelId = "m1"});
    const auto mine = catalogue.deploy("d1", "m1", u"de");
    catalogue.deploy("d4", "m1", u"en");
    catalogue.deploy("d1", "m2", u"fr");
    const auto deployed = catalogue.deployed("m1", "d1");
    ASSERT_EQ(deployed.size(), 1U);
    EXPECT_EQ(deployed[0].deploymentId, mine);
    EXPECT_EQ(catalogue.deployed("m1").size(), 2U);
    EXPECT_TRUE(catalogue.deployed("m3", "d1").empty());
}

TEST_F(DeploymentServiceTest, ofADriverOfAnotherModelNeedALinkToThatModel) {
    EXPECT_EQ(refusedAdd(catalogue.request("d2", "m1")),
              u"The driver \"d2\" is neither one of this model nor one of its alternates.");
    catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m2"});
    EXPECT_FALSE(catalogue.deploy("d2", "m1").empty());
}

TEST_F(DeploymentServiceTest, stayWhenTheLinkToTheModelOfTheirDriverEnds) {
    catalogue.service().addAlternate({.modelId = "m1", .alternateModelId = "m2"});
    catalogue.deploy("d2", "m1");
    catalogue.service().removeAlternate({.modelId = "m1", .alternateModelId = "m2"});
    EXPECT_EQ(catalogue.deployed("m1").size(), 1U);
}

TEST_F(DeploymentServiceTest, ofWhatIsNotThereAreRefused) {
    auto request = catalogue.request("d1", "m1");
    request.osId = "";
    EXPECT_EQ(refusedAdd(request), u"Please choose an operating system.");
    EXPECT_EQ(refusedAdd(catalogue.request("d9", "m1")), u"The driver was deleted in the meantime.");
    EXPECT_EQ(refusedAdd(catalogue.request("d1", "m9")), u"The model does not exist any more.");
    EXPECT_TRUE(catalogue.deployed("m1").empty());
}

TEST_F(DeploymentServiceTest, withBytesThatMeanNothingAreRefused) {
    for (const auto member :
         {&protocol::AddDriverDeploymentRequest::use, &protocol::AddDriverDeploymentRequest::install,
          &protocol::AddDriverDeploymentRequest::keepConfig}) {
        auto request = catalogue.request("d1", "m1");
        request.*member = 2;
        EXPECT_EQ(refusedAdd(request), u"These settings for using and installing a driver are not valid.");
    }
    auto request = catalogue.request("d1", "m1");
    request.installMethod = 3;
    EXPECT_EQ(refusedAdd(request), u"These settings for using and installing a driver are not valid.");
    EXPECT_TRUE(catalogue.deployed("m1").empty());
}

TEST_F(DeploymentServiceTest, takeYesAndNoAsDigitsToo) {
    auto request = catalogue.request("d1", "m1");
    request.use = '1';
    request.install = '0';
    catalogue.deploy(request);
    EXPECT_EQ(catalogue.deployed("m1").at(0).use, 1);
    EXPECT_EQ(catalogue.deployed("m1").at(0).install, 0);
}

TEST_F(DeploymentServiceTest, whoseTextsNoConsoleCouldReceiveAreRefused) {
    auto request = catalogue.request("d1", "m1");
    request.comment = std::u16string(30000, u'x');
    request.locale = std::u16string(3000, u'x');
    EXPECT_EQ(refusedAdd(request), u"The texts of this deployment are too long to be sent back in one piece.");
}

TEST_F(DeploymentServiceTest, areOneForEachModelSystemAndLocaleAndASecondReplacesTheFirst) {
    catalogue.addDriver("d4", "m1");
    const auto former = catalogue.deploy("d1", "m1", u"de-DE");
    const auto next = catalogue.deploy("d4", "m1", u"DE-de");
    EXPECT_NE(next, former);
    const auto deployed = catalogue.deployed("m1");
    ASSERT_EQ(deployed.size(), 1U);
    EXPECT_EQ(deployed[0].deploymentId, next);
    EXPECT_EQ(deployed[0].version, u"d4");
    EXPECT_EQ(deployed[0].locale, u"DE-de");
}

TEST_F(DeploymentServiceTest, aReplacementMovesTheConfigurationsThatAreToBeKept) {
    const auto former = catalogue.deploy("d1", "m1");
    useConfiguration(former);
    auto request = catalogue.request("d1", "m1");
    request.keepConfig = 1;
    const auto next = catalogue.deploy(request);
    EXPECT_NE(next, former);
    EXPECT_EQ(usersOf(next), 1U);
}

TEST_F(DeploymentServiceTest, aReplacementRemovesTheConfigurationsThatAreNotToBeKept) {
    const auto former = catalogue.deploy("d1", "m1");
    useConfiguration(former);
    const auto next = catalogue.deploy("d1", "m1");
    EXPECT_EQ(usersOf(former), 0U);
    EXPECT_EQ(usersOf(next), 0U);
}

TEST_F(DeploymentServiceTest, aRefusedReplacementLeavesTheFormerOneAndItsConfigurations) {
    const auto former = catalogue.deploy("d1", "m1");
    useConfiguration(former);
    EXPECT_EQ(catalogue.deploy("d9", "m1"), "");
    EXPECT_EQ(catalogue.deployed("m1").at(0).deploymentId, former);
    EXPECT_EQ(usersOf(former), 1U);
}

TEST_F(DeploymentServiceTest, aChangeSetsUseInstallAndMethodAndNothingElse) {
    const auto id = catalogue.deploy("d1", "m1");
    auto expected = catalogue.deployed("m1").at(0);
    for (const auto& [use, install, method] : {std::tuple{1, 0, 2}, {0, 1, 0}, {1, 1, 1}}) {
        expected.use = static_cast<std::uint8_t>(use);
        expected.install = static_cast<std::uint8_t>(install);
        expected.installMethod = static_cast<std::uint8_t>(method);
        EXPECT_TRUE(isDone(catalogue.deploymentService().update({.deploymentId = id,
                                                                 .use = expected.use,
                                                                 .install = expected.install,
                                                                 .installMethod = expected.installMethod})));
        EXPECT_EQ(catalogue.deployed("m1").at(0), expected);
    }
}

TEST_F(DeploymentServiceTest, aChangeOfWhatIsGoneOrToWhatIsNothingIsRefused) {
    const auto id = catalogue.deploy("d1", "m1");
    const auto before = catalogue.deployed("m1");
    EXPECT_EQ(textOf(catalogue.deploymentService().update({.deploymentId = "gone"})),
              u"The deployment was removed in the meantime.");
    EXPECT_EQ(textOf(catalogue.deploymentService().update({.deploymentId = id, .installMethod = 3})),
              u"These settings for using and installing a driver are not valid.");
    EXPECT_FALSE(isDone(catalogue.deploymentService().update({.deploymentId = id, .use = 7})));
    EXPECT_EQ(catalogue.deployed("m1"), before);
}

TEST_F(DeploymentServiceTest, installingAnewRemovesConfigurationsUnlessTheyAreToBeKept) {
    auto request = catalogue.request("d1", "m1");
    request.install = 0;
    const auto id = catalogue.deploy(request);
    useConfiguration(id);
    catalogue.deploymentService().update({.deploymentId = id, .install = 1, .keepConfig = 1});
    EXPECT_EQ(usersOf(id), 1U);
    catalogue.deploymentService().update({.deploymentId = id, .install = 0});
    catalogue.deploymentService().update({.deploymentId = id, .install = 1, .keepConfig = 0});
    EXPECT_EQ(usersOf(id), 0U);
}

TEST_F(DeploymentServiceTest, changesThatInstallNothingLeaveConfigurationsAlone) {
    const auto id = catalogue.deploy("d1", "m1");
    useConfiguration(id);
    catalogue.deploymentService().update({.deploymentId = id, .install = 1, .installMethod = 2});
    catalogue.deploymentService().update({.deploymentId = id, .install = 0});
    EXPECT_EQ(usersOf(id), 1U);
}

TEST_F(DeploymentServiceTest, aRemovedOneTakesItsConfigurationsAlong) {
    const auto id = catalogue.deploy("d1", "m1");
    useConfiguration(id);
    EXPECT_TRUE(isDone(catalogue.deploymentService().remove({.deploymentId = id})));
    EXPECT_TRUE(catalogue.deployed("m1").empty());
    EXPECT_EQ(usersOf(id), 0U);
    EXPECT_EQ(textOf(catalogue.deploymentService().remove({.deploymentId = id})),
              u"The deployment was removed in the meantime.");
}

} // namespace
} // namespace server
