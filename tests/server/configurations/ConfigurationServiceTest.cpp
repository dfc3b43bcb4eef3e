#include "server/configurations/ConfigurationService.h"

#include "server/commands/Refusal.h"
#include "server/commands/ReplyBuffer.h"
#include "tests/server/configurations/ConfiguredEstate.h"
#include "tests/server/support/TestEstate.h"

namespace server {
namespace {

using Ids = std::vector<std::string>;
using Names = std::vector<std::u16string>;

// Two models. The driver of "m1" is deployed as "de" and "en", that of "m2" as "other". The configurations "c1" and
// "c2" are for "m1", "c3" is for "m2". The printer is an "m1" and has the queue "Q1".
class ConfigurationServiceTest : public testing::Test {
protected:
    ConfigurationServiceTest() {
        estate.addModel("m1");
        estate.addModel("m2");
        estate.deploy("de", "m1", u"de");
        estate.deploy("en", "m1", u"en");
        estate.deploy("other", "m2", u"de");
        estate.addConfiguration("c1", "m1", u"Draft");
        estate.addConfiguration("c2", "m1", u"Letter");
        estate.addConfiguration("c3", "m2", u"Draft");
        printer = estate.addPrinter(u"P", "m1");
        queue = estate.addQueue(u"Q1", printer);
    }

    protocol::StatusReply apply(const std::string& queueId, const std::string& map, const std::string& configuration) {
        return estate.service().applyToQueue({.queueId = queueId, .driverMapId = map, .configId = configuration});
    }
    protocol::StatusReply comment(const std::string& id, const std::u16string& text) {
        return estate.service().setComment({.configId = id, .comment = text});
    }
    protocol::StatusReply remove(const std::string& id, std::uint8_t force) {
        return estate.service().remove({.force = force, .configId = id});
    }
    protocol::StatusReply applyForDriver(const std::string& id, const std::string& model, const std::string& driver) {
        return estate.service().applyForDriver({.configId = id, .modelId = model, .driverId = driver});
    }

    test::TestEstate place;
    test::ConfiguredEstate estate{place.connection()};
    std::string printer;
    std::string queue;
};

TEST_F(ConfigurationServiceTest, aQueueHasOneEntryForEachDeploymentOfItsModel) {
    EXPECT_TRUE(isDone(apply(queue, "de", "c2")));

    EXPECT_EQ(estate.entries(queue), (std::vector<protocol::QueueConfigEntry>{{.configId = "c2",
                                                                               .driverName = u"driver m1",
                                                                               .locale = u"de",
                                                                               .driverMapId = "de",
                                                                               .packageName = u"Letter",
                                                                               .comment = u"settings"},
                                                                              {.configId = "",
                                                                               .driverName = u"driver m1",
                                                                               .locale = u"en",
                                                                               .driverMapId = "en",
                                                                               .packageName = u"",
                                                                               .comment = u""}}));
}

TEST_F(ConfigurationServiceTest, aDriverMapSelectsItsEntryOnly) {
    ASSERT_EQ(estate.entries(queue, "en").size(), 1U);
    EXPECT_EQ(estate.entries(queue, "en").front().driverMapId, "en");
    EXPECT_TRUE(estate.entries(queue, "other").empty());
    EXPECT_TRUE(estate.entries(queue, "nothing").empty());
    EXPECT_TRUE(estate.entries("nobody").empty());
    EXPECT_TRUE(estate.entries(printer).empty());
}

TEST_F(ConfigurationServiceTest, theChoicesAreTheConfigurationsOfTheModelByName) {
    EXPECT_EQ(estate.choices("en"), (std::vector<protocol::QueueConfigChoice>{{.id = "c1", .name = u"Draft"},
                                                                              {.id = "c2", .name = u"Letter"}}));
    EXPECT_TRUE(estate.choices("nothing").empty());
}

TEST_F(ConfigurationServiceTest, aQueueHasTheModelOfItsPrinterAndWithoutOneItsOwn) {
    const auto bare = estate.addPrinter(u"Bare", "");
    EXPECT_EQ(estate.queues().modelOf(estate.addQueue(u"A", printer, "m2")), "m1");
    EXPECT_EQ(estate.queues().modelOf(estate.addQueue(u"B", bare, "m2")), "m2");
    EXPECT_EQ(estate.queues().modelOf(estate.addFollowQueue(u"F", "m2")), "m2");
    EXPECT_EQ(estate.queues().modelOf(estate.addLocalPrinter(u"L", "m1")), "m1");
    EXPECT_EQ(estate.queues().modelOf(printer), std::nullopt);
    EXPECT_EQ(estate.queues().queuesOfModel("m1"), 3U);
    EXPECT_EQ(estate.queues().queuesOfModel("m2"), 2U);
}

TEST_F(ConfigurationServiceTest, followPrintQueuesAndLocalPrintersUseConfigurationsToo) {
    const auto follow = estate.addFollowQueue(u"F", "m2");
    const auto local = estate.addLocalPrinter(u"L", "m2");

    EXPECT_TRUE(isDone(apply(follow, "other", "c3")));
    EXPECT_TRUE(isDone(apply(local, "other", "c3")));

    EXPECT_EQ(estate.users("c3"), (Names{u"F", u"L"}));
}

TEST_F(ConfigurationServiceTest, anotherConfigurationTakesThePlaceOfTheFirstAndAnEmptyOneEndsIt) {
    apply(queue, "de", "c1");
    EXPECT_TRUE(isDone(apply(queue, "de", "c2")));
    EXPECT_EQ(estate.used(queue), (Ids{"c2", ""}));

    EXPECT_TRUE(isDone(apply(queue, "de", "")));
    EXPECT_EQ(estate.used(queue), (Ids{"", ""}));
    EXPECT_TRUE(isDone(apply(queue, "de", "")));
}

TEST_F(ConfigurationServiceTest, whatDoesNotBelongTogetherIsRefused) {
    EXPECT_EQ(apply("nobody", "de", "c1").text, u"The queue does not exist any more.");
    EXPECT_EQ(apply(printer, "de", "c1").text, u"The queue does not exist any more.");
    EXPECT_EQ(apply(queue, "other", "c3").text, u"The driver is not deployed for the model of this queue any more.");
    EXPECT_EQ(apply(queue, "nothing", "").text, u"The driver is not deployed for the model of this queue any more.");
    EXPECT_EQ(apply(queue, "de", "c9").text, u"The configuration does not exist any more.");
    EXPECT_EQ(apply(queue, "de", "c3").text, u"The configuration \"Draft\" is for another model.");
    EXPECT_EQ(estate.used(queue), (Ids{"", ""}));
}

TEST_F(ConfigurationServiceTest, aQueueThatUsesAConfigurationTwiceCountsOnce) {
    apply(queue, "de", "c1");
    apply(queue, "en", "c1");
    apply(estate.addQueue(u"another", printer), "en", "c1");

    EXPECT_EQ(estate.users("c1"), (Names{u"another", u"Q1"}));
    EXPECT_EQ(estate.list("m1").front().useCount, 2);
    EXPECT_EQ(estate.queues().queuesWithConfiguration("de"), 1U);
    EXPECT_EQ(estate.queues().queuesWithConfiguration("en"), 2U);
}

TEST_F(ConfigurationServiceTest, aListOfConfigurationsIsInTheOrderOfTheirNames) {
    estate.addConfiguration("c4", "m1", u"a plan");

    const auto records = estate.list("m1");

    ASSERT_EQ(records.size(), 3U);
    EXPECT_EQ(records[0].configId, "c4");
    EXPECT_EQ(records[1], (protocol::ConfigurationRecord{.configId = "c1",
                                                         .uploadedBy = u"Ines",
                                                         .date = u"2014-03-05 17:04:09",
                                                         .comment = u"Draft",
                                                         .configText = u"settings",
                                                         .useCount = 0}));
    EXPECT_EQ(records[2].configId, "c2");
    EXPECT_TRUE(estate.list("m9").empty());
}

TEST_F(ConfigurationServiceTest, theNumberOfAQueueIsTheSameInEveryList) {
    apply(queue, "de", "c1");
    const auto number = estate.sql().number("SELECT number FROM record WHERE id = ?", queue);

    auto rows = estate.queues().listQueues("c1").rows;

    ASSERT_TRUE(rows.next());
    const auto record = readFields<protocol::ConfigQueueRecord>(rows);
    EXPECT_EQ(record.queueNumber, number);
    EXPECT_EQ(record.queueId, queue);
    EXPECT_EQ(record.queueLocation, u"at Q1");
}

TEST_F(ConfigurationServiceTest, aCommentIsWrittenAndIsANameOfTheModelFromThenOn) {
    EXPECT_TRUE(isDone(comment("c1", u"Drafts")));
    EXPECT_TRUE(isDone(comment("c1", u"DRAFTS")));
    EXPECT_EQ(estate.choices("de").front().name, u"DRAFTS");
    EXPECT_EQ(comment("c2", u"drafts").text, u"There is a configuration \"drafts\" of this model already.");
    EXPECT_TRUE(isDone(comment("c3", u"drafts")));
}

TEST_F(ConfigurationServiceTest, aCommentThatCannotBeShownIsRefused) {
    EXPECT_EQ(comment("c1", u"").text, u"A configuration needs a comment, which is its name.");
    EXPECT_EQ(comment("c1", std::u16string(1, u'\0') + u"x").text,
              u"A configuration needs a comment, which is its name.");
    EXPECT_EQ(comment("c1", std::u16string(10001, u'x')).text, u"The comment is longer than 10000 characters.");
    EXPECT_TRUE(isDone(comment("c1", std::u16string(10000, u'x'))));
    EXPECT_EQ(comment("c9", u"x").text, u"The configuration does not exist any more.");
}

TEST_F(ConfigurationServiceTest, theLongestEntryOfAQueueFitsAFrame) {
    comment("c1", std::u16string(10000, u'x'));
    estate.sql().run("UPDATE configuration SET configText = ?", std::u16string(30000, u'x'));
    estate.sql().run("UPDATE driver SET version = ?", std::u16string(30000, u'x'));
    estate.sql().run("UPDATE driverDeployment SET locale = ?", std::u16string(30000, u'x'));
    apply(queue, "de", "c1");

    EXPECT_LT(frameDataSize(estate.entries(queue).front()), largestReceivableFrame);
}

TEST_F(ConfigurationServiceTest, aConfigurationInUseIsDeletedOnlyByForceAndTakenAwayFromItsQueues) {
    apply(queue, "de", "c1");
    apply(queue, "en", "c2");

    EXPECT_EQ(remove("c1", 0).text, u"The configuration \"Draft\" is being used.");
    EXPECT_EQ(estate.used(queue), (Ids{"c1", "c2"}));
    EXPECT_TRUE(isDone(remove("c1", 1)));

    EXPECT_EQ(estate.used(queue), (Ids{"", "c2"}));
    EXPECT_EQ(remove("c1", 1).text, u"The configuration does not exist any more.");
}

TEST_F(ConfigurationServiceTest, anUnusedConfigurationIsDeletedWithoutForce) {
    EXPECT_TRUE(isDone(remove("c1", 0)));
    EXPECT_EQ(estate.list("m1").size(), 1U);
}

TEST_F(ConfigurationServiceTest, aConfigurationIsTakenAwayFromAQueueWithAllItsDriverMaps) {
    apply(queue, "de", "c1");
    apply(queue, "en", "c1");

    EXPECT_TRUE(isDone(estate.service().removeFromQueue({.configId = "c1", .queueId = queue})));

    EXPECT_EQ(estate.used(queue), (Ids{"", ""}));
    EXPECT_EQ(estate.service().removeFromQueue({.configId = "c1", .queueId = queue}).text,
              u"The queue does not use the configuration any more.");
}

TEST_F(ConfigurationServiceTest, aConfigurationForADriverGoesToAllQueuesOfTheModelWithItsDeployments) {
    const auto bare = estate.addPrinter(u"Bare", "");
    const auto own = estate.addQueue(u"own", bare, "m1");
    const auto local = estate.addLocalPrinter(u"local", "m1");
    const auto other = estate.addFollowQueue(u"other", "m2");
    estate.addDriver("second", "m1");
    estate.deploy("fr", "m1", u"fr", "second");
    apply(queue, "de", "c2");
    apply(queue, "fr", "c2");

    EXPECT_TRUE(isDone(applyForDriver("c1", "m1", "driver m1")));

    EXPECT_EQ(estate.used(queue), (Ids{"c1", "c1", "c2"})); // in the order of the locales
    EXPECT_EQ(estate.used(own), (Ids{"c1", "c1", ""}));
    EXPECT_EQ(estate.used(local), (Ids{"c1", "c1", ""}));
    EXPECT_EQ(estate.used(other), (Ids{""}));
}

TEST_F(ConfigurationServiceTest, aConfigurationForADriverThatIsNotDeployedIsRefused) {
    EXPECT_EQ(applyForDriver("c1", "m1", "driver m2").text, u"The driver is not deployed for this model.");
    EXPECT_EQ(applyForDriver("c3", "m1", "driver m1").text, u"The configuration \"Draft\" is for another model.");
    EXPECT_EQ(applyForDriver("c9", "m1", "driver m1").text, u"The configuration does not exist any more.");
    EXPECT_EQ(estate.used(queue), (Ids{"", ""}));
}

TEST_F(ConfigurationServiceTest, whatQueuesUseMovesToTheDeploymentThatReplacesTheirs) {
    apply(queue, "de", "c1");
    apply(queue, "en", "c2");
    place.connection().change([&] {
        estate.queues().moveAll("de", "new"); // added only afterwards, because there can be only one per locale
        estate.sql().run("DELETE FROM driverDeployment WHERE id = 'de'");
        estate.deploy("new", "m1", u"de");
        return true;
    });

    EXPECT_EQ(estate.used(queue), (Ids{"c1", "c2"}));
    EXPECT_EQ(estate.entries(queue).front().driverMapId, "new");
}

TEST_F(ConfigurationServiceTest, whatAQueueUsesAlreadyWithTheOtherDeploymentGivesWay) {
    apply(queue, "de", "c1");
    apply(queue, "en", "c2");

    estate.queues().moveAll("de", "en");

    EXPECT_EQ(estate.used(queue), (Ids{"", "c1"}));
    estate.queues().moveAll("en", "en");
    EXPECT_EQ(estate.used(queue), (Ids{"", "c1"}));
}

TEST_F(ConfigurationServiceTest, whatQueuesUseEndsWithItsDeployment) {
    apply(queue, "de", "c1");
    apply(queue, "en", "c2");

    estate.queues().removeAll("en");
    estate.sql().run("DELETE FROM driverDeployment WHERE id = 'de'");

    EXPECT_EQ(estate.used(queue), (Ids{""}));
    EXPECT_TRUE(estate.users("c1").empty());
    EXPECT_TRUE(estate.users("c2").empty());
}

TEST_F(ConfigurationServiceTest, whatAQueueUsesEndsWithTheQueue) {
    apply(queue, "de", "c1");

    place.recordService().remove({.type = protocol::RecordDeletion::printer, .id = printer});

    EXPECT_TRUE(estate.users("c1").empty());
    EXPECT_TRUE(isDone(remove("c1", 0)));
}

TEST_F(ConfigurationServiceTest, aQueueThatComesToAnotherModelUsesNothingOfTheFormer) {
    const auto follow = estate.addFollowQueue(u"F", "m1");
    apply(queue, "de", "c1");
    apply(follow, "de", "c1");

    estate.change(printer, u"P", "m2");
    estate.change(follow, u"F", "m2");

    EXPECT_TRUE(estate.users("c1").empty());
    EXPECT_EQ(estate.used(queue), (Ids{""}));
}

TEST_F(ConfigurationServiceTest, aQueueKeepsWhatItUsesWhenItsModelStaysThatOfItsPrinter) {
    apply(queue, "de", "c1");

    estate.change(queue, u"Q1", "m2");
    estate.change(printer, u"P renamed", "m1");

    EXPECT_EQ(estate.users("c1"), (Names{u"Q1"}));
}

TEST_F(ConfigurationServiceTest, aQueueWithANewNameStandsInItsNewPlace) {
    apply(queue, "de", "c1");
    apply(estate.addQueue(u"Q2", printer), "de", "c1");

    estate.change(queue, u"Q3", "");

    EXPECT_EQ(estate.users("c1"), (Names{u"Q2", u"Q3"}));
}

TEST_F(ConfigurationServiceTest, noListSortsItsRows) {
    apply(queue, "de", "c1");
    ASSERT_EQ(estate.entries(queue).size(), 2U);
    ASSERT_EQ(estate.entries(queue, "en").size(), 1U);
    ASSERT_EQ(estate.choices("de").size(), 2U);
    ASSERT_EQ(estate.list("m1").size(), 2U);
    ASSERT_EQ(estate.users("c1").size(), 1U);

    EXPECT_EQ(estate.sorts(), 0);
}

} // namespace
} // namespace server
