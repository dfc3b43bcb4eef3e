#include "tests/client/ClientTest.h"
#include "tests/support/Environment.h"

namespace client {
namespace {

using protocol::ConfigQueueRecord;
using protocol::QueueConfigChoice;
using protocol::QueueConfigEntry;

// A configuration of which only the id and the date matter.
Bytes configuration(const char* id, const char* date = "00 00") {
    return hex(id) + hex("00 00") + hex(date) + hex("00 00 00 00 00 00");
}

class Configurations : public ClientTest {
protected:
    support::EnvironmentVariable everything{"LC_ALL", "C"};

    // Checks that the action fails without an exception when there is no server.
    template <class Action>
    void expectFalseWithoutAServer(Action&& action) {
        CQVXAdminClass client(settings);
        EXPECT_FALSE(std::forward<Action>(action)(client));
    }
};

TEST_F(Configurations, ofAQueueAreAskedForByQueueAndDriverMap) {
    answer({countedList({}), countedList({})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.getConfigurations("q1", ""));
    EXPECT_TRUE(client.getConfigurations("q1", "m1"));

    EXPECT_EQ(received(0), request(17, "02 00 71 31 00 00"));
    EXPECT_EQ(received(1), request(17, "02 00 71 31 02 00 6D 31"));
}

TEST_F(Configurations, aCountOfZeroOfAQueueLeavesTheListEmptyAndNoDataMessageFollows) {
    answer({countedList({hex("00 00 00 00 00 00 00 00 00 00 00 00")}), frame({dataMessage(hex("00 00"))})});
    CQVXAdminClass client(settings);
    client.getConfigurations("q1", "");

    EXPECT_TRUE(client.getConfigurations("q1", ""));

    EXPECT_TRUE(client.configurations().empty());
}

TEST_F(Configurations, ofAQueueAreHandedOutInTheReverseOfTheWireOrder) {
    answer({countedList({hex("02 00 63 31 04 00 76 00 31 00 04 00 64 00 65 00 02 00 6D 31 02 00 50 00 02 00 74 00"),
                         hex("00 00 00 00 00 00 02 00 6D 32 00 00 00 00")})});
    CQVXAdminClass client(settings);
    client.getConfigurations("q1", "");
    ASSERT_EQ(client.configurations().size(), 2U);
    EXPECT_EQ(client.configurations().front().driverMapId, "m1");
    QueueConfigEntry entry;

    EXPECT_TRUE(client.nextConfiguration(entry));
    EXPECT_EQ(entry.driverMapId, "m2");
    EXPECT_EQ(entry.configId, "");
    EXPECT_TRUE(client.nextConfiguration(entry));
    EXPECT_EQ(entry, (QueueConfigEntry{.configId = "c1",
                                       .driverName = u"v1",
                                       .locale = u"de",
                                       .driverMapId = "m1",
                                       .packageName = u"P",
                                       .comment = u"t"}));
    EXPECT_FALSE(client.nextConfiguration(entry));
    EXPECT_EQ(entry.configId, "c1");
}

TEST_F(Configurations, toChooseFromAreHandedOutInTheReverseOfTheWireOrder) {
    answer({countedList({hex("02 00 63 31 02 00 41 00"), hex("02 00 63 32 02 00 42 00")})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.getConfigChoices("m1"));

    EXPECT_EQ(received(), request(18, "02 00 6D 31"));
    EXPECT_EQ(client.configChoices().front().id, "c1");
    QueueConfigChoice choice;
    EXPECT_TRUE(client.nextConfigChoice(choice));
    EXPECT_EQ(choice, (QueueConfigChoice{.id = "c2", .name = u"B"}));
    EXPECT_TRUE(client.nextConfigChoice(choice));
    EXPECT_FALSE(client.nextConfigChoice(choice));
}

TEST_F(Configurations, areGivenToAQueueAndTakenAway) {
    answer({Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.applyConfiguration("q1", "m1", "c1"));
    EXPECT_TRUE(client.applyConfiguration("q1", "m1", ""));

    EXPECT_EQ(received(0), request(19, "02 00 71 31 02 00 6D 31 02 00 63 31"));
    EXPECT_EQ(received(1), request(19, "02 00 71 31 02 00 6D 31 00 00"));
}

TEST_F(Configurations, ofAModelAreHandedOutInTheReverseOfTheWireOrder) {
    answer({countedList({configuration("02 00 63 31"), configuration("02 00 63 32")})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listConfigurations("m1"));

    EXPECT_EQ(received(), request(50, "02 00 6D 31"));
    EXPECT_EQ(client.configurationRecords().front().configId, "c1");
    ListedConfiguration record;
    EXPECT_TRUE(client.nextConfigurationRecord(record));
    EXPECT_EQ(record.configId, "c2");
    EXPECT_TRUE(client.nextConfigurationRecord(record));
    EXPECT_EQ(record.configId, "c1");
    EXPECT_FALSE(client.nextConfigurationRecord(record));
}

TEST_F(Configurations, haveTheirDateInTheFormOfThePlaceAndThatOfTheServerToSortBy) {
    answer(
        {countedList({configuration("00 00", "26 00 32 00 30 00 31 00 34 00 2D 00 30 00 33 00 2D 00 30 00 35 00 20 00 "
                                             "31 00 37 00 3A 00 30 00 34 00 3A 00 30 00 39 00"),
                      configuration("00 00", "08 00 6E 00 6F 00 6E 00 65 00")})});
    CQVXAdminClass client(settings);

    client.listConfigurations("m1");

    ASSERT_EQ(client.configurationRecords().size(), 2U);
    EXPECT_EQ(client.configurationRecords()[0].date, u"2014-03-05 17:04:09");
    EXPECT_EQ(client.configurationRecords()[0].dateText, u"03/05/14 17:04:09");
    EXPECT_EQ(client.configurationRecords()[1].date, u"none");
    EXPECT_EQ(client.configurationRecords()[1].dateText, u"none");
}

TEST_F(Configurations, getACommentAndAreDeleted) {
    answer({Bytes{}, Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.setConfigurationComment("c1", u"Lux"));
    EXPECT_TRUE(client.deleteConfiguration("c1", false));
    EXPECT_TRUE(client.deleteConfiguration("c1", true));

    EXPECT_EQ(received(0), request(51, "02 00 63 31 06 00 4C 00 75 00 78 00"));
    EXPECT_EQ(received(1), request(52, "00 02 00 63 31"));
    EXPECT_EQ(received(2), request(52, "01 02 00 63 31"));
}

TEST_F(Configurations, theirQueuesAreHandedOutInTheReverseOfTheWireOrder) {
    answer({countedList(
        {hex("01 00 00 00 02 00 71 31 02 00 41 00 02 00 4C 00"), hex("02 00 00 00 02 00 71 32 02 00 42 00 00 00")})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listConfigurationQueues("c1"));

    EXPECT_EQ(received(), request(53, "02 00 63 31"));
    EXPECT_EQ(client.configurationQueues().front().queueId, "q1");
    ConfigQueueRecord record;
    EXPECT_TRUE(client.nextConfigurationQueue(record));
    EXPECT_EQ(record, (ConfigQueueRecord{.queueNumber = 2, .queueId = "q2", .queueName = u"B", .queueLocation = {}}));
    EXPECT_TRUE(client.nextConfigurationQueue(record));
    EXPECT_EQ(record, (ConfigQueueRecord{.queueNumber = 1, .queueId = "q1", .queueName = u"A", .queueLocation = u"L"}));
    EXPECT_FALSE(client.nextConfigurationQueue(record));
}

TEST_F(Configurations, areTakenAwayFromAQueueAndGivenToAllOfADriver) {
    answer({Bytes{}, Bytes{}});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.removeConfigurationFromQueue("c1", "q1"));
    EXPECT_TRUE(client.applyConfigurationForDriver("c1", "m1", "d1"));

    EXPECT_EQ(received(0), request(54, "02 00 63 31 02 00 71 31"));
    EXPECT_EQ(received(1), request(79, "02 00 63 31 02 00 6D 31 02 00 64 31"));
}

TEST_F(Configurations, everyOperationWithoutAServerIsFalseAndThrowsNothing) {
    expectFalseWithoutAServer([](auto& client) { return client.getConfigurations("q", ""); });
    expectFalseWithoutAServer([](auto& client) { return client.getConfigChoices("m"); });
    expectFalseWithoutAServer([](auto& client) { return client.applyConfiguration("q", "m", "c"); });
    expectFalseWithoutAServer([](auto& client) { return client.listConfigurations("m"); });
    expectFalseWithoutAServer([](auto& client) { return client.setConfigurationComment("c", u"x"); });
    expectFalseWithoutAServer([](auto& client) { return client.deleteConfiguration("c", true); });
    expectFalseWithoutAServer([](auto& client) { return client.listConfigurationQueues("c"); });
    expectFalseWithoutAServer([](auto& client) { return client.removeConfigurationFromQueue("c", "q"); });
    expectFalseWithoutAServer([](auto& client) { return client.applyConfigurationForDriver("c", "m", "d"); });
}

TEST_F(Configurations, aListWithoutAServerForgetsTheOneBefore) {
    answer({countedList({configuration("02 00 63 31")})});
    CQVXAdminClass client(settings);
    client.listConfigurations("m1");
    EXPECT_EQ(server->finish(), "");
    server.reset();

    EXPECT_FALSE(client.listConfigurations("m1"));

    EXPECT_TRUE(client.configurationRecords().empty());
}

TEST_F(Configurations, ofAListThatBreaksOffHoldWhatCameAndAreNotHandedOut) {
    const Bytes whole = countedList({configuration("02 00 63 31"), configuration("02 00 63 32")});
    serve({[whole](Connection& connection) {
        connection.expectFrame();
        connection.send({whole.begin(), whole.end() - 12});
    }});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listConfigurations("m1"));

    ASSERT_EQ(client.configurationRecords().size(), 1U);
    EXPECT_EQ(client.configurationRecords().front().configId, "c1");
    ListedConfiguration record;
    EXPECT_EQ(thrownBy([&] { client.nextConfigurationRecord(record); }), "invalid vector<T> subscript");
}

} // namespace
} // namespace client
