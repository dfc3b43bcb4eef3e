#include "tests/server/configurations/ConfiguredEstate.h"
#include "tests/server/support/RunningServer.h"
#include "tests/server/support/TestClient.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace test; // the words of requests
using Texts = std::vector<std::u16string>;

// A model "m" with the deployments "de" and "en" of one driver, two configurations, and a printer with two queues.
class ConfigurationServer : public testing::Test {
protected:
    ConfigurationServer() {
        const auto connection = server.store().openConnection();
        connection->change([&] {
            ConfiguredEstate configured(*connection);
            configured.addModel("m");
            configured.deploy("de", "m", u"de");
            configured.deploy("en", "m", u"en");
            configured.addConfiguration("c1", "m", u"Draft");
            configured.addConfiguration("c2", "m", u"Letter");
            const auto printer = configured.addPrinter(u"P", "m");
            first = configured.addQueue(u"A", printer);
            second = configured.addQueue(u"B", printer);
            return true;
        });
        server.start();
    }

    std::vector<test::Bytes> list(std::uint16_t opcode, const test::Bytes& fields) {
        auto messages = messagesOf(ask(server.port(), request(opcode, fields)));
        EXPECT_EQ(FieldCursor(messages.at(0)).number(2), messages.size() - 1);
        messages.erase(messages.begin());
        return messages;
    }
    void change(std::uint16_t opcode, const test::Bytes& fields) { tell(server.port(), request(opcode, fields)); }
    void apply(const std::string& queue, const std::string& map, const std::string& configuration) {
        change(19, str8(queue) + str8(map) + str8(configuration));
    }

    // The names of the configurations that a queue uses, in the order of its driver maps.
    Texts packages(const std::string& queue) {
        Texts names;
        for (const auto& message : list(17, str8(queue) + str8(""))) {
            FieldCursor cursor(message);
            (void)cursor.text8();
            EXPECT_EQ(cursor.text16(), u"driver m");
            (void)cursor.text16();
            (void)cursor.text8();
            names.push_back(cursor.text16());
            (void)cursor.text16();
            EXPECT_TRUE(cursor.atEnd());
        }
        return names;
    }
    // The names of the queues that use a configuration.
    Texts users(const std::string& configuration) {
        Texts names;
        for (const auto& message : list(53, str8(configuration))) {
            FieldCursor cursor(message);
            (void)cursor.number(4);
            EXPECT_EQ(cursor.text8().size(), 36U);
            names.push_back(cursor.text16());
            EXPECT_EQ(cursor.text16(), u"at " + names.back());
            EXPECT_TRUE(cursor.atEnd());
        }
        return names;
    }
    Texts comments() {
        Texts names;
        for (const auto& message : list(50, str8("m"))) {
            FieldCursor cursor(message);
            (void)cursor.text8();
            EXPECT_EQ(cursor.text16(), u"Ines");
            EXPECT_EQ(cursor.text16(), u"2014-03-05 17:04:09");
            names.push_back(cursor.text16());
            (void)cursor.text16();
            (void)cursor.number(2);
            EXPECT_TRUE(cursor.atEnd());
        }
        return names;
    }

    RunningServer server;
    std::string first;
    std::string second;
};

TEST_F(ConfigurationServer, aQueueUsesWhatWasAppliedAndWhatIsRefusedChangesNothing) {
    EXPECT_EQ(packages(first), (Texts{u"", u""}));
    apply(first, "de", "c1");
    apply(first, "en", "c2");
    apply(first, "en", "nothing");
    apply(first, "nothing", "c1");
    apply("nobody", "de", "c1");
    EXPECT_EQ(packages(first), (Texts{u"Draft", u"Letter"}));
    apply(first, "en", "");
    EXPECT_EQ(packages(first), (Texts{u"Draft", u""}));
    EXPECT_EQ(list(17, str8(first) + str8("en")).size(), 1U);
}

TEST_F(ConfigurationServer, theChoicesForADriverMapAreIdAndName) {
    const auto choices = list(18, str8("en"));
    ASSERT_EQ(choices.size(), 2U);
    EXPECT_EQ(support::toHex(choices[1]), "01 17 00 00 00 02 00 63 32 0C 00 4C 00 65 00 74 00 74 00 65 00 72 00");
    EXPECT_TRUE(list(18, str8("nothing")).empty());
}

TEST_F(ConfigurationServer, aCommentIsWrittenAndARefusedOneIsNot) {
    change(51, str8("c1") + str16(u"Plan"));
    EXPECT_EQ(comments(), (Texts{u"Letter", u"Plan"}));
    change(51, str8("c1") + str16(u""));
    change(51, str8("c1") + str16(u"letter"));
    change(51, str8("c9") + str16(u"x"));
    EXPECT_EQ(comments(), (Texts{u"Letter", u"Plan"}));
}

TEST_F(ConfigurationServer, aConfigurationInUseIsDeletedByForceOnly) {
    apply(first, "de", "c1");
    change(52, u8(0) + str8("c1"));
    change(52, u8(0) + str8("c9"));
    EXPECT_EQ(comments(), (Texts{u"Draft", u"Letter"}));
    change(52, u8(1) + str8("c1"));
    change(52, u8(0) + str8("c2"));
    EXPECT_TRUE(comments().empty());
    EXPECT_EQ(packages(first), (Texts{u"", u""}));
}

TEST_F(ConfigurationServer, aConfigurationIsAppliedForADriverAndTakenAwayFromAQueue) {
    change(79, str8("c1") + str8("m") + str8("driver m"));
    change(79, str8("c2") + str8("m") + str8("another"));
    change(79, str8("c9") + str8("m") + str8("driver m"));
    EXPECT_EQ(users("c1"), (Texts{u"A", u"B"}));
    EXPECT_EQ(packages(second), (Texts{u"Draft", u"Draft"}));
    change(54, str8("c1") + str8(first));
    change(54, str8("c1") + str8(first));
    change(54, str8("c2") + str8(second));
    EXPECT_EQ(users("c1"), (Texts{u"B"}));
    EXPECT_TRUE(users("c2").empty());
}

TEST_F(ConfigurationServer, aRequestWithoutAllOfItsFieldsChangesNothing) {
    apply(first, "de", "c1");
    change(52, u8(1));
    change(54, str8("c1"));
    change(79, str8("c1") + str8("m"));
    change(19, str8(first) + str8("de"));
    EXPECT_EQ(packages(first), (Texts{u"Draft", u""}));
    EXPECT_EQ(support::toHex(ask(server.port(), request(17, str8(first)))), "");
}

} // namespace
} // namespace server
