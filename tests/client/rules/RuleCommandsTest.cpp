#include "client/rules/RuleCommands.h"

#include "tests/client/ClientTest.h"

#include <functional>

namespace client {
namespace {

using protocol::AffectedRecord;
using protocol::PageLimitRecord;
using protocol::PriceEntryRecord;
using protocol::PricePlanRecord;
using protocol::RuleEntryRecord;
using protocol::RuleGroupRecord;
using protocol::ShortIdRecord;
using protocol::UserMessageRecord;

// 0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480 on the wire.
const std::string uuidFields = "24 00 30 66 38 65 32 61 36 34 2D 35 62 31 64 2D 34 66 30 65 2D 39 63 33 37 2D"
                               "36 61 32 64 35 31 62 37 65 34 38 30 ";
const wire::Uuid uuid = wire::parseUuid("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480");

const RuleGroupRecord group{.id = "g1", .name = u"N", .comment = u"C", .extra1 = u"x", .extra2 = u"y"};
const std::string groupFields = "02 00 67 31 02 00 4E 00 02 00 43 00 02 00 78 00 02 00 79 00";
const AffectedRecord affected{.id = "a1", .type = 2, .equals = 0, .name = u"N"};
const std::string affectedReply = "02 00 61 31 02 00 02 00 4E 00";
const std::string affectedRequest = "00 02 00 61 31 02 02 00 4E 00";
const RuleEntryRecord entry{.type = 10,
                            .id = "e1",
                            .typeText = u"T",
                            .name = u"N",
                            .comment = {},
                            .affectedName = {},
                            .targetId = "t",
                            .parentId = "p",
                            .affectedId = {}};
const std::string entryFields = "0A 02 00 65 31 02 00 54 00 02 00 4E 00 00 00 00 00 01 00 74 01 00 70 00 00";
const PricePlanRecord plan{.id = "p1",
                           .payMethod = 1,
                           .name = u"N",
                           .comment = {},
                           .defaultPrice = 1,
                           .colorMultiplier = 0,
                           .duplexMultiplier = 0,
                           .copyMultiplier = 0,
                           .scanMultiplier = 2,
                           .vat = 2500};
const std::string planFields =
    "02 00 70 31 01 02 00 4E 00 00 00 00 00 80 3F 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 40 C4 09 00 00";
const PriceEntryRecord price{
    .id = "r1", .paperName = "A4", .kind = protocol::PriceKind::multiplier, .paperCode = 9, .basePrice = 0.5F};
const std::string priceFields =
    "02 00 72 31 02 00 41 34 00 09 00 00 00 00 3F 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00";
const ShortIdRecord shortId{.id = uuid,
                            .name = u"N",
                            .comment = {},
                            .messageId = {},
                            .validMinutes = 1440,
                            .reservedMinutes = {},
                            .reservedUntil = 45015};
const std::string shortIdFields = uuidFields + "02 00 4E 00 00 00 00 01 A0 05 00 00 00 01 D7 AF 00 00";
const UserMessageRecord message{
    .id = uuid, .name = u"N", .subtitle = {}, .caption = u"C", .text = u"T", .icon = 2, .type = 3, .builtIn = true};
const std::string messageFields = uuidFields + "02 00 4E 00 02 00 43 00 02 00 54 00 02 00 00 00 03 00 00 00 01";

PageLimitRecord pageLimit() {
    PageLimitRecord limit;
    limit.id = "l1";
    limit.priority = 1;
    limit.name = u"N";
    limit.messageId = uuid;
    limit.extraText2 = u"y";
    return limit;
}
const std::string limitFields = "02 00 6C 31 01 00 02 00 4E 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01" +
                                uuidFields + "00 00 00 00 00 00 00 00 02 00 79 00";

// An operation, and the request that it makes.
struct Sent {
    std::function<bool(CQVXAdminClass&)> operation;
    std::uint16_t opcode;
    std::string fields;
};

const std::vector<Sent>& writes() {
    static const std::vector<Sent> all = {
        {[](auto& client) { return client.addRuleGroup(group); }, 58, "01" + groupFields},
        {[](auto& client) { return client.updateRuleGroup(group); }, 58, "02" + groupFields},
        {[](auto& client) { return client.deleteRuleGroup("g1"); }, 58, "03 02 00 67 31"},
        {[](auto& client) { return client.addAffected(affected); }, 60, "01" + affectedRequest},
        {[](auto& client) { return client.updateAffected(affected); }, 60, "02" + affectedRequest},
        {[](auto& client) { return client.deleteAffected("a1"); }, 60, "03 02 00 61 31"},
        {[](auto& client) { return client.addRuleEntry(0, "p", "g1", entry); }, 64,
         "05 00 00 00 00 01 00 70 02 00 67 31" + entryFields},
        {[](auto& client) { return client.addRuleEntry(12, "", "", entry); }, 64,
         "05 0C 00 00 00 00 00 00 00" + entryFields},
        {[](auto& client) { return client.updateRuleEntry(entry); }, 64, "58" + entryFields},
        {[](auto& client) { return client.removeRuleEntry("e1", 10); }, 62, "03 02 00 65 31 0A 00"},
        {[](auto& client) { return client.addPageLimit(pageLimit()); }, 64, "01" + limitFields},
        {[](auto& client) { return client.updatePageLimit(pageLimit()); }, 64, "02" + limitFields},
        {[](auto& client) { return client.deletePageLimit("l1"); }, 66, "02 00 6C 31"},
        {[](auto& client) { return client.addUserMessage(message); }, 68, "01" + messageFields},
        {[](auto& client) { return client.updateUserMessage(message); }, 68, "02" + messageFields},
        {[](auto& client) { return client.deleteUserMessage(uuid); }, 68, "03" + uuidFields},
        {[](auto& client) {
             return client.addPricePlan(plan, {price, price});
         },
         70, "01" + planFields + "02 00" + priceFields + priceFields},
        {[](auto& client) { return client.updatePricePlan(plan, {}); }, 70, "02" + planFields + "00 00"},
        {[](auto& client) { return client.deletePricePlan("p1"); }, 70, "03 02 00 70 31"},
        {[](auto& client) { return client.addShortId(shortId); }, 83, shortIdFields},
        {[](auto& client) { return client.updateShortId(shortId); }, 84, shortIdFields},
        {[](auto& client) { return client.deleteShortId(uuid); }, 82, uuidFields},
    };
    return all;
}

class Rules : public ClientTest {
protected:
    // Checks that a list is requested with this request, and contains the two records of the reply in order; a reply
    // cut after the first record ends in this text.
    template <class Record, class List>
    void expectList(List list, const Bytes& expectedRequest, const Record& record, const Bytes& fields,
                    const std::string& textOfEarlyEnd) {
        const Bytes whole = countedList({fields, fields});
        serve({[whole](Connection& connection) {
                   connection.expectFrame();
                   connection.send(whole);
                   connection.untilClosed();
               },
               [part = Bytes(whole.begin(), whole.end() - static_cast<long>(fields.size()))](Connection& connection) {
                   connection.expectFrame();
                   connection.send(part);
               }});
        CQVXAdminClass client(settings);
        std::vector<Record> records(1);

        EXPECT_TRUE(list(client, records));
        EXPECT_EQ(records, (std::vector<Record>{record, record}));
        bool complete = false; // stays false when the early end throws
        EXPECT_EQ(thrownBy([&] { complete = list(client, records); }), textOfEarlyEnd);
        EXPECT_FALSE(complete);
        EXPECT_EQ(records, std::vector<Record>{record});
        EXPECT_EQ(received(0), expectedRequest);
    }
};

TEST_F(Rules, eachWriteSendsItsOwnRequestAndReadsNoAnswer) {
    answer(std::vector<Bytes>(writes().size()));
    CQVXAdminClass client(settings);

    for (const Sent& sent : writes()) {
        EXPECT_TRUE(sent.operation(client)) << sent.opcode << ": " << sent.fields;
    }

    for (std::size_t index = 0; index < writes().size(); ++index) {
        EXPECT_EQ(received(index), request(writes()[index].opcode, hex(writes()[index].fields))) << index;
    }
}

TEST_F(Rules, aWriteWithoutAServerIsFalseButForPricePlansAndShortIdsWhichThrow) {
    CQVXAdminClass client(settings);

    for (const Sent& sent : writes()) {
        if (sent.opcode == 70 || sent.opcode >= 82) {
            EXPECT_EQ(thrownBy([&] { static_cast<void>(sent.operation(client)); }), "Failed to connect to server")
                << sent.opcode;
        } else {
            EXPECT_FALSE(sent.operation(client)) << sent.opcode;
        }
    }
}

TEST_F(Rules, groupsThatBreakOffHoldWhatCameBeforeAndAnswerFalse) {
    expectList([](auto& client, auto& groups) { return client.listRuleGroups(groups); }, request(57, "00 00"), group,
               hex(groupFields), "nothing");
}

TEST_F(Rules, affectedThatBreakOffHoldWhatCameBeforeAndAnswerFalse) {
    expectList([](auto& client, auto& list) { return client.listAffected(list); }, request(59, "00 00"), affected,
               hex(affectedReply), "nothing");
}

TEST_F(Rules, entriesThatBreakOffThrow) {
    expectList([](auto& client, auto& entries) { return client.listRuleEntries("g1", 0, entries); },
               request(61, "02 00 67 31 00 00 00 00"), entry, hex(entryFields), "failed to get message");
}

TEST_F(Rules, userMessagesThatBreakOffThrow) {
    expectList([](auto& client, auto& list) { return client.listUserMessages(list); }, request(67, "01 00 00"), message,
               hex(messageFields), "failed to get message");
}

TEST_F(Rules, pricePlansThatBreakOffThrow) {
    expectList([](auto& client, auto& plans) { return client.listPricePlans(plans); }, request(69, "00 00"), plan,
               hex(planFields), "failed to get messages");
}

TEST_F(Rules, pricesThatBreakOffThrow) {
    expectList([](auto& client, auto& prices) { return client.listPriceEntries("p1", prices); },
               request(71, "02 00 70 31"), price, hex(priceFields), "failed to get messages");
}

TEST_F(Rules, shortIdsAreAskedForWithoutFieldsAndThrowWhenTheyBreakOff) {
    expectList([](auto& client, auto& shortIds) { return client.listShortIds(shortIds); },
               frame({commandMessage(81, 1)}), shortId, hex(shortIdFields), "failed to get messages");
}

TEST_F(Rules, entriesOfRegionZeroAreAskedForWithNoIdAndNoNumber) {
    answer({countedList({}), countedList({})});
    CQVXAdminClass client(settings);
    std::vector<RuleEntryRecord> entries;

    EXPECT_TRUE(client.listRuleEntries("", 0, entries));
    EXPECT_TRUE(client.listRuleEntries("", 12, entries));

    EXPECT_EQ(received(0), request(61, "00 00 00 00 00 00"));
    EXPECT_EQ(received(1), request(61, "00 00 0C 00 00 00"));
    EXPECT_EQ(observer.ended.at(1).summary, "region 12");
}

TEST_F(Rules, onePricePlanIsAskedForByItsId) {
    answer({countedList({hex(planFields)})});
    std::vector<PricePlanRecord> plans;

    EXPECT_TRUE(CQVXAdminClass(settings).listPricePlans(plans, "p1"));

    EXPECT_EQ(received(), request(69, "02 00 70 31"));
    EXPECT_EQ(plans, std::vector<PricePlanRecord>{plan});
}

TEST_F(Rules, pageLimitsComeAsTwoParallelLists) {
    answer({countedList({hex("02 00 6C 32 02 00 42 00"), hex("02 00 6C 31 02 00 41 00")})});
    std::vector<std::string> ids{"old"};
    std::vector<wire::WideString> names{u"old", u"older"};

    EXPECT_TRUE(CQVXAdminClass(settings).listPageLimits(ids, names));

    EXPECT_EQ(received(), frame({commandMessage(73, 1)}));
    EXPECT_EQ(ids, (std::vector<std::string>{"l2", "l1"}));
    EXPECT_EQ(names, (std::vector<wire::WideString>{u"B", u"A"}));
}

TEST_F(Rules, pageLimitsWithoutAServerThrowNothingAndAreEmpty) {
    CQVXAdminClass client(settings);
    std::vector<std::string> ids{"old"};
    std::vector<wire::WideString> names{u"old"};

    EXPECT_FALSE(client.listPageLimits(ids, names));

    EXPECT_TRUE(ids.empty());
    EXPECT_TRUE(names.empty());
}

TEST_F(Rules, pageLimitsThatDoNotComeOrBreakOffThrow) {
    const Bytes whole = countedList({hex("01 00 61 02 00 41 00"), hex("01 00 62 02 00 42 00")});
    serve({[](Connection& connection) { connection.expectFrame(); },
           [whole](Connection& connection) {
               connection.expectFrame();
               connection.send({whole.begin(), whole.end() - 2});
           }});
    CQVXAdminClass client(settings);
    std::vector<std::string> ids{"old"};
    std::vector<wire::WideString> names{u"old"};

    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(thrownBy([&] { client.listPageLimits(ids, names); }), "failed to get messages");
    }

    EXPECT_TRUE(ids.empty());
    EXPECT_TRUE(names.empty());
}

TEST_F(Rules, aPageLimitIsGotByItsId) {
    answer({frame({dataMessage(hex(limitFields + "AA BB"))})});

    EXPECT_EQ(CQVXAdminClass(settings).getPageLimit("l1"), pageLimit());

    EXPECT_EQ(received(), request(65, "02 00 6C 31"));
}

TEST_F(Rules, aPageLimitThatHasGoneThrows) {
    serve({[](Connection& connection) { connection.expectFrame(); }});
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { static_cast<void>(client.getPageLimit("l1")); }), "failed to get message");
    EXPECT_EQ(observer.ended.at(0).outcome, CommandOutcome::failed);
}

TEST_F(Rules, aPageLimitWithoutAServerIsNone) {
    CQVXAdminClass client(settings);

    EXPECT_EQ(client.getPageLimit("l1"), std::nullopt);
}

TEST_F(Rules, listsWithoutAServerAreFalseAndEmptyOrThrow) {
    CQVXAdminClass client(settings);
    std::vector<RuleGroupRecord> groups(1);
    std::vector<RuleEntryRecord> entries(1);
    std::vector<AffectedRecord> people(1);
    std::vector<UserMessageRecord> userMessages(1);
    std::vector<PricePlanRecord> plans(1);

    EXPECT_FALSE(client.listRuleGroups(groups));
    EXPECT_FALSE(client.listRuleEntries("g1", 0, entries));
    EXPECT_FALSE(client.listAffected(people));
    EXPECT_FALSE(client.listUserMessages(userMessages));
    EXPECT_EQ(thrownBy([&] { client.listPricePlans(plans); }), "Failed to connect to server");

    EXPECT_TRUE(groups.empty() && entries.empty() && people.empty() && userMessages.empty() && plans.empty());
}

TEST_F(Rules, aRecordShorterThanItsFieldsThrowsReadingOutsideScope) {
    answer({countedList({hex(groupFields), hex("02 00 67")})});
    std::vector<RuleGroupRecord> groups;

    EXPECT_EQ(thrownBy([&] { CQVXAdminClass(settings).listRuleGroups(groups); }), "plain: Reading outside scope");

    EXPECT_EQ(groups, std::vector<RuleGroupRecord>{group});
}

TEST_F(Rules, aPriceplanWithMoreEntriesThanACountCanTellIsNotSent) {
    CQVXAdminClass client(settings);
    const std::vector<PriceEntryRecord> tooMany(65536);

    EXPECT_EQ(thrownBy([&] { client.addPricePlan(plan, tooMany); }), "a price plan has 65535 entries at most");
}

} // namespace
} // namespace client
