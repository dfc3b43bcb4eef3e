#include "hosts/common/WriteCheck.h"

#include "client/rules/NewRecord.h"
#include "protocol/inventory/InventoryReport.h"
#include "protocol/inventory/IpRange.h"
#include "protocol/inventory/Schema.h"
#include "protocol/rules/PricePlan.h"
#include "tests/server/support/TestFolder.h"
#include "tests/server/support/VantreldProcess.h"

#include <gmock/gmock.h>

#include <set>

namespace hosttest {
namespace {

using testing::IsEmpty;
using testing::Optional;
using Client = client::CQVXAdminClass;

// The program's settings for a real server with the sample estate.
class SampleServer {
public:
    explicit SampleServer(client::RequestObserver& requests) {
        client::theProperties = std::make_shared<client::CQVXAdminClassProperties>();
        client::theProperties->host = "127.0.0.1";
        client::theProperties->port = process_.waitForPort();
        client::theProperties->hooks.requests = &requests;
    }
    SampleServer(const SampleServer&) = delete;
    SampleServer& operator=(const SampleServer&) = delete;
    ~SampleServer() { client::theProperties.reset(); }

private:
    server::test::TestFolder folder_;
    server::test::VantreldProcess process_{{"--database", folder_ / "estate.db", "--port", "0", "--sample", "small",
                                            "--user", "admin", "--password-file", folder_.write("password", "geheim\n"),
                                            "--login-required", "0"}};
};

class WriteCheck : public testing::Test {
protected:
    template <class Write>
    void expectDone(Write write) {
        check.forget();
        EXPECT_TRUE(write());
        EXPECT_EQ(check.notCarriedOut(), std::nullopt);
    }

    template <class Write>
    void expectRefused(const std::string& command, Write write) {
        check.forget();
        EXPECT_TRUE(write());
        EXPECT_THAT(check.notCarriedOut(), Optional(command));
    }

    std::int32_t region(const wire::WideString& name) {
        Client regions;
        EXPECT_TRUE(regions.listRegions(protocol::RegionKind::printersAndQueues));
        const auto found = std::ranges::find(regions.regions(), name, &protocol::RegionRecord::name);
        return found != regions.regions().end() ? found->id : -1;
    }

    common::WriteCheck check;
    const SampleServer server{check};
    Client client;
};

constexpr auto kind = protocol::RegionKind::printersAndQueues;

TEST(WriteLookups, areThereForEveryCommandWithoutAReply) {
    std::set<std::string> missing;
    const auto lookups = common::allWriteLookups();
    for (const auto& command : protocol::catalogue()) {
        const auto forms = std::ranges::count(lookups, command.opcode, &common::WriteLookup::opcode);
        if (command.reply == protocol::ReplyShape::none &&
            std::cmp_less(forms, std::max<std::size_t>(command.forms.size(), 1))) {
            missing.emplace(command.name);
        }
    }

    EXPECT_THAT(missing, IsEmpty());
}

TEST_F(WriteCheck, seesRegionsMadeRenamedMovedAndDeleted) {
    expectDone([&] { return client.createRegion(kind, 0, u"North"); });
    const auto north = region(u"North");
    expectDone([&] { return client.renameRegion(kind, north, u"Far 😀 North"); });
    expectDone([&] { return client.renameRegion(kind, north, u"Far 😀 North"); });
    expectDone([&] { return client.moveRegion(kind, north, region(u"Berlin")); });
    expectDone([&] { return client.deleteRegion(kind, north); });
}

TEST_F(WriteCheck, tellsWhatWasNotDoneWithRegions) {
    const auto berlin = region(u"Berlin");

    expectRefused("CreateRegion", [&] { return client.createRegion(kind, 0, u"Berlin"); });
    expectRefused("RenameRegion", [&] { return client.renameRegion(kind, berlin, u"München"); });
    expectRefused("MoveRegion", [&] { return client.moveRegion(kind, berlin, region(u"Warehouse")); });
    expectRefused("DeleteRegion", [&] { return client.deleteRegion(kind, berlin); });
    expectRefused("DeleteRegion", [&] { return client.deleteRegion(kind, 0); });
}

TEST_F(WriteCheck, seesPrintersMovedAndDeleted) {
    std::int16_t count = 0;
    ASSERT_TRUE(client.getPrintersInRegion(region(u"München"), count));
    const auto id = client.printerRecords().front().id;

    expectDone([&] { return client.movePrinter(id, region(u"Berlin")); });
    expectRefused("MovePrinter", [&] { return client.movePrinter(id, 123456); });
    expectDone([&] { return client.setStatusOctetOrder(id, 2); });
    expectRefused("SetStatusOctetOrder", [&] { return client.setStatusOctetOrder("no printer", 2); });
    expectDone([&] { return client.deletePrinter(id); });
}

TEST_F(WriteCheck, seesTheObjectsOfTheRules) {
    auto group = client::newRecord<protocol::RuleGroupRecord>();
    expectDone([&] { return client.addRuleGroup(group); });
    expectDone([&] { return client.updateRuleGroup(group); });
    expectRefused("WriteRuleGroup", [&] {
        auto other = group;
        other.name = u"Another one with the id";
        return client.addRuleGroup(other);
    });
    expectRefused("WriteRuleGroup",
                  [&] { return client.updateRuleGroup(client::newRecord<protocol::RuleGroupRecord>()); });

    auto limit = client::newRecord<protocol::PageLimitRecord>();
    limit.name = u"Limit";
    limit.maxCost = 0.1F;
    expectDone([&] { return client.addPageLimit(limit); });
    limit.action = 99;
    expectRefused("WriteRuleObject", [&] { return client.updatePageLimit(limit); });
    expectDone([&] { return client.deletePageLimit(limit.id); });

    auto plan = client::newRecord<protocol::PricePlanRecord>();
    plan.name = u"Plan";
    auto price = client::newRecord<protocol::PriceEntryRecord>();
    price.basePrice = 0.07F;
    expectDone([&] { return client.addPricePlan(plan, {price, client::newRecord<protocol::PriceEntryRecord>()}); });
    expectDone([&] { return client.updatePricePlan(plan, {price}); });
    price.kind = static_cast<protocol::PriceKind>(99);
    expectRefused("WritePricePlan", [&] { return client.updatePricePlan(plan, {price}); });
    expectDone([&] { return client.deletePricePlan(plan.id); });

    auto shortId = client::newRecord<protocol::ShortIdRecord>();
    expectRefused("AddShortId", [&] { return client.addShortId(shortId); });
    shortId.name = u"Short";
    shortId.reservedUntil = 3600;
    expectDone([&] { return client.addShortId(shortId); });
    shortId.reservedUntil = 86'400;
    expectRefused("UpdateShortId", [&] { return client.updateShortId(shortId); });
    expectDone([&] { return client.deleteShortId(shortId.id); });
}

TEST_F(WriteCheck, seesMessagesAndAffectedUsers) {
    std::vector<protocol::UserMessageRecord> messages;
    ASSERT_TRUE(client.listUserMessages(messages));
    const auto builtIn = std::ranges::find(messages, true, &protocol::UserMessageRecord::builtIn);
    expectDone([&] { return client.updateUserMessage(*builtIn); });
    expectRefused("WriteUserMessage", [&] { return client.deleteUserMessage(builtIn->id); });
    auto message = client::newRecord<protocol::UserMessageRecord>();
    message.name = u"Message";
    message.builtIn = true; // a console may send this
    expectDone([&] { return client.addUserMessage(message); });
    expectDone([&] { return client.deleteUserMessage(message.id); });

    auto user = client::newRecord<protocol::AffectedRecord>();
    user.name = u"anna";
    expectDone([&] { return client.addAffected(user); });
    user.type = 9;
    expectRefused("WriteAffected", [&] { return client.updateAffected(user); });
    expectDone([&] { return client.deleteAffected(user.id); });
}

TEST_F(WriteCheck, seesRuleEntriesInTheListsThatTheConsoleHasRead) {
    const auto berlin = region(u"Berlin");
    auto group = client::newRecord<protocol::RuleGroupRecord>();
    ASSERT_TRUE(client.addRuleGroup(group));
    auto entry = client::newRecord<protocol::RuleEntryRecord>();
    entry.type = 1;
    entry.name = u"Apply";
    entry.targetId = group.id;
    expectDone([&] { return client.addRuleEntry(berlin, {}, group.id, entry); });
    expectRefused("WriteRuleObject", [&] { return client.addRuleEntry(0, {}, group.id, entry); });
    std::vector<protocol::RuleEntryRecord> entries;
    ASSERT_TRUE(client.listRuleEntries({}, berlin, entries));
    ASSERT_TRUE(client.listRuleEntries({}, 0, entries));

    entry.comment = u"changed";
    expectDone([&] { return client.updateRuleEntry(entry); });
    entry.type = 99;
    expectRefused("WriteRuleObject", [&] { return client.updateRuleEntry(entry); });
    expectDone([&] { return client.removeRuleEntry(entry.id, 1); });
}

// The dialog of a price plan changes the entry that it was opened from, even before the server has it; this must stay.
TEST_F(WriteCheck, doesNotMindAChangeOfARuleEntryThatIsNotThereYet) {
    std::vector<protocol::RuleEntryRecord> entries;
    ASSERT_TRUE(client.listRuleEntries({}, 0, entries));

    expectDone([&] { return client.updateRuleEntry(client::newRecord<protocol::RuleEntryRecord>()); });
}

TEST_F(WriteCheck, seesRecipientsPlansAndRanges) {
    expectDone(
        [&] { return client.writeEmailRecipient({.id = {}, .email = u"a@b", .name = u"Anna", .active = true}); });
    expectRefused("WriteEmailRecipient",
                  [&] { return client.writeEmailRecipient({.id = {}, .email = {}, .name = u"Anna", .active = true}); });
    expectRefused("SetRecipientActive", [&] { return client.setRecipientActive("nobody", true); });

    protocol::SchemaRecord plan;
    plan.schemaName = u"Plan";
    expectDone([&] { return client.createSchema(plan); });
    plan.schemaId = "none";
    expectRefused("ChangeSchema", [&] { return client.updateSchema(plan); });
    protocol::IpRangeRecord range;
    range.name = u"Range";
    range.startIp = u"10.0.0.1";
    expectDone([&] { return client.addIpRange(range); });
    expectDone([&] { return client.addIpRange(range); });
    range.endIp = u"nowhere";
    expectRefused("ChangeIpRange", [&] { return client.addIpRange(range); });
    expectRefused("CreateInventoryReport", [&] { return client.createInventoryReport({}); });
}

TEST_F(WriteCheck, seesTheDriverCatalogue) {
    ASSERT_TRUE(client.listDriverBrands());
    const auto brand = client.driverBrands().front().brandId;
    std::vector<protocol::DriverModelRecord> models;
    ASSERT_TRUE(client.listDriverModels(0, brand, models));
    ASSERT_FALSE(models.empty());

    expectDone([&] { return client.addDriverModel(brand, u"New model"); });
    expectRefused("AddDriverModel", [&] { return client.addDriverModel(brand, u"New model"); });
    expectDone([&] { return client.setDriverModelVisible(models.front().modelId, false); });
    expectDone([&] { return client.setDriverModelVisible(models.front().modelId, false); });
    expectRefused("AddAlternateDriver",
                  [&] { return client.addAlternateDriver(models.front().modelId, models.front().modelId); });
    expectRefused("SetModelOctetOrder", [&] { return client.setModelOctetOrder(models.front().modelId, 9); });
}

TEST_F(WriteCheck, looksAtAWriteBeforeTheNextOneUndoesIt) {
    const auto group = client::newRecord<protocol::RuleGroupRecord>();

    expectDone([&] { return client.addRuleGroup(group) && client.deleteRuleGroup(group.id); });
    expectRefused("CreateRegion",
                  [&] { return client.createRegion(kind, 0, u"Berlin") && client.addRuleGroup(group); });
}

TEST_F(WriteCheck, forgetsWhatWasAskedAbout) {
    ASSERT_TRUE(client.createRegion(kind, 0, u"Berlin"));
    ASSERT_TRUE(check.notCarriedOut().has_value());

    check.forget();

    EXPECT_EQ(check.notCarriedOut(), std::nullopt);
}

TEST(SeenRequests, keepsTheLatestOfACommandFirstAndEachOnce) {
    common::SeenRequests seen;
    const auto& command = protocol::commandOf<protocol::ListPriceEntriesRequest>();
    for (int plan = 0; plan < 100; ++plan) {
        seen.add(command,
                 protocol::makeDataMessage(protocol::ListPriceEntriesRequest{.planId = std::to_string(plan)})->bytes());
    }
    seen.add(command, protocol::makeDataMessage(protocol::ListPriceEntriesRequest{.planId = "50"})->bytes());

    const auto requests = seen.of<protocol::ListPriceEntriesRequest>();

    ASSERT_EQ(requests.size(), 64U);
    EXPECT_EQ(requests[0].planId, "50");
    EXPECT_EQ(requests[1].planId, "99");
    EXPECT_EQ(requests.back().planId, "36");
}

} // namespace
} // namespace hosttest
