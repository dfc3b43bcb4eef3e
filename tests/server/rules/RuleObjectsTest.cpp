#include "tests/server/rules/RuleEstate.h"

namespace server {
namespace {

using protocol::PageLimitRecord;
using protocol::PriceEntryRecord;
using protocol::PricePlanRecord;
using protocol::ShortIdRecord;
using protocol::UserMessageRecord;
using test::RuleEstate;

const wire::Uuid uuid = wire::parseUuid("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480");
const wire::Uuid otherUuid = wire::parseUuid("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e481");

PageLimitRecord fullLimit() {
    return {.id = "l1",
            .priority = 65535,
            .name = u"N",
            .comment = u"C",
            .document = u"D",
            .format = 65535,
            .color = 2,
            .duplex = 2,
            .maxPages = 65535,
            .action = 6,
            .maxCost = 0.1F,
            .messageId = uuid,
            .destinationId = "q",
            .enforce = 1,
            .extraFlag = true,
            .extraText1 = u"x",
            .extraId = "i",
            .extraText2 = u"y"};
}

PricePlanRecord fullPlan() {
    return {.id = "p1",
            .payMethod = 3,
            .name = u"N",
            .comment = u"C",
            .defaultPrice = 0.1F,
            .colorMultiplier = -2,
            .duplexMultiplier = 3.4e38F,
            .copyMultiplier = 1e-40F,
            .scanMultiplier = 0,
            .vat = 4294967295U};
}

PriceEntryRecord priceOf(const std::string& id, std::uint16_t code) {
    return {.id = id,
            .paperName = "cm \xB2",
            .kind = protocol::PriceKind::areaPrint,
            .paperCode = code,
            .basePrice = 0.1F,
            .bwSimplex = 0.2F,
            .bwDuplex = 0.3F,
            .colorSimplex = 0.4F,
            .colorDuplex = 0.5F};
}

ShortIdRecord fullShortId() {
    return {.id = uuid,
            .name = u"N",
            .comment = u"C",
            .messageId = otherUuid,
            .validMinutes = 4294967295U,
            .reservedMinutes = 0,
            .reservedUntil = 86399};
}

UserMessageRecord fullMessage() {
    return {.id = uuid,
            .name = u"N",
            .subtitle = {},
            .caption = u"C",
            .text = u"T",
            .icon = 3,
            .type = 3,
            .builtIn = false};
}

// True when the changed record is refused and nothing is written.
template <class Write, class R, class Change>
bool refuses(const Write& write, R record, Change change) {
    change(record);
    return !isDone(write(record));
}

// Checks the id, the name and the size of every record.
template <class R, class Write>
void expectRefusals(RuleEstate& place, const R& record, const Write& write, std::size_t alreadyThere = 0) {
    EXPECT_TRUE(refuses(write, record, [](R& one) { one.id = {}; }));
    EXPECT_TRUE(refuses(write, record, [](R& one) { one.name.clear(); }));
    EXPECT_TRUE(refuses(write, record, [](R& one) { one.name = std::u16string(1, u'\0'); }));
    EXPECT_TRUE(refuses(write, record, [](R& one) { one.name = test::tooLongText(); }));
    if constexpr (std::same_as<decltype(record.id), std::string>) {
        EXPECT_TRUE(refuses(write, record, [](R& one) { one.id = std::string(65, 'x'); }));
    }
    EXPECT_EQ(place.all<R>().size(), alreadyThere);
    EXPECT_TRUE(isDone(write(record)));
    EXPECT_TRUE(refuses(write, record, [](R&) {})); // it is there already
    EXPECT_EQ(place.all<R>().size(), alreadyThere + 1);
}

TEST(PageLimitService, aLimitIsAddedChangedAndDeleted) {
    RuleEstate place;
    auto service = place.service<PageLimitService>();
    EXPECT_TRUE(isDone(service.write({.action = test::adds, .limit = fullLimit()})));
    EXPECT_EQ(place.connection().table<PageLimitTable>().find(std::string("l1")), fullLimit());
    auto limit = fullLimit();
    limit.messageId.reset();
    limit.name = u"M";
    EXPECT_TRUE(isDone(service.write({.action = test::updates, .limit = limit})));
    EXPECT_EQ(place.connection().table<PageLimitTable>().find(std::string("l1")), limit);
    EXPECT_TRUE(isDone(service.remove({.id = "l1"})));
    EXPECT_EQ(place.connection().table<PageLimitTable>().find(std::string("l1")), std::nullopt);
    EXPECT_FALSE(isDone(service.write({.action = test::updates, .limit = limit})));
    EXPECT_FALSE(isDone(service.remove({.id = "l1"})));
}

TEST(PageLimitService, whatALimitCannotBeIsRefused) {
    RuleEstate place;
    const auto write = [&](const PageLimitRecord& limit) {
        return place.service<PageLimitService>().write({.action = test::adds, .limit = limit});
    };
    EXPECT_TRUE(refuses(write, fullLimit(), [](auto& one) { one.color = 3; }));
    EXPECT_TRUE(refuses(write, fullLimit(), [](auto& one) { one.duplex = 3; }));
    EXPECT_TRUE(refuses(write, fullLimit(), [](auto& one) { one.action = 7; }));
    EXPECT_TRUE(refuses(write, fullLimit(), [](auto& one) { one.enforce = 2; }));
    expectRefusals(place, fullLimit(), write);
}

TEST(PageLimitService, aListTellsIdsAndNamesByName) {
    RuleEstate place;
    for (const auto& [id, name] :
         std::initializer_list<std::pair<const char*, const char16_t*>>{{"l1", u"b"}, {"l2", u"A"}, {"l3", u"b"}}) {
        auto limit = fullLimit();
        limit.id = id;
        limit.name = name;
        EXPECT_TRUE(isDone(place.service<PageLimitService>().write({.action = test::adds, .limit = limit})));
    }
    using protocol::PageLimitName;
    EXPECT_EQ(RuleEstate::all<PageLimitName>(place.connection().table<PageLimitTable>().list()),
              (std::vector<PageLimitName>{{"l2", u"A"}, {"l1", u"b"}, {"l3", u"b"}}));
}

TEST(PricePlanService, aPlanKeepsEachFigureAndItsPricesInTheirOrder) {
    RuleEstate place;
    const std::vector<PriceEntryRecord> entries{priceOf("r2", 9), priceOf("r1", 257), priceOf("r3", 9)};
    EXPECT_TRUE(isDone(
        place.service<PricePlanService>().write({.action = test::adds, .plan = fullPlan(), .entries = entries})));
    EXPECT_EQ(place.all<PricePlanRecord>(), std::vector<PricePlanRecord>{fullPlan()});
    EXPECT_EQ(place.prices("p1"), entries);
    EXPECT_TRUE(place.prices("p2").empty());
}

TEST(PricePlanService, anUpdateReplacesAllPrices) {
    RuleEstate place;
    auto service = place.service<PricePlanService>();
    EXPECT_TRUE(isDone(
        service.write({.action = test::adds, .plan = fullPlan(), .entries = {priceOf("r1", 9), priceOf("r2", 8)}})));
    auto plan = fullPlan();
    plan.vat = 750;
    EXPECT_TRUE(isDone(service.write({.action = test::updates, .plan = plan, .entries = {priceOf("r3", 1)}})));
    EXPECT_EQ(place.all<PricePlanRecord>("p1").at(0).vat, 750U);
    EXPECT_EQ(place.prices("p1"), std::vector<PriceEntryRecord>{priceOf("r3", 1)});
    EXPECT_TRUE(isDone(service.write({.action = test::updates, .plan = plan, .entries = {}})));
    EXPECT_TRUE(place.prices("p1").empty());
}

TEST(PricePlanService, aRefusedPriceLeavesThePlanAndAllPricesAsTheyWere) {
    RuleEstate place;
    auto service = place.service<PricePlanService>();
    EXPECT_TRUE(isDone(service.write({.action = test::adds, .plan = fullPlan(), .entries = {priceOf("r1", 9)}})));
    auto plan = fullPlan();
    plan.name = u"Other";
    auto bad = priceOf("r2", 8);
    for (const auto& change : std::initializer_list<void (*)(PriceEntryRecord&)>{
             [](PriceEntryRecord& entry) { entry.kind = static_cast<protocol::PriceKind>(7); },
             [](PriceEntryRecord& entry) { entry.id.clear(); },
             [](PriceEntryRecord& entry) { entry.paperName = std::string(65535, 'x'); }}) {
        bad = priceOf("r2", 8);
        change(bad);
        EXPECT_FALSE(
            isDone(service.write({.action = test::updates, .plan = plan, .entries = {priceOf("r3", 1), bad}})));
    }
    EXPECT_EQ(place.all<PricePlanRecord>().at(0), fullPlan());
    EXPECT_EQ(place.prices("p1"), std::vector<PriceEntryRecord>{priceOf("r1", 9)});
}

TEST(PricePlanService, deletingAPlanDeletesItsPrices) {
    RuleEstate place;
    auto service = place.service<PricePlanService>();
    EXPECT_TRUE(isDone(service.write({.action = test::adds, .plan = fullPlan(), .entries = {priceOf("r1", 9)}})));
    EXPECT_TRUE(isDone(service.remove({.id = "p1"})));
    EXPECT_TRUE(place.prices("p1").empty());
    EXPECT_FALSE(isDone(service.remove({.id = "p1"})));
    EXPECT_FALSE(isDone(service.write({.action = test::updates, .plan = fullPlan(), .entries = {}})));
    EXPECT_TRUE(isDone(service.write({.action = test::adds, .plan = fullPlan(), .entries = {}})));
    EXPECT_TRUE(place.prices("p1").empty());
}

TEST(PricePlanService, whatAPlanCannotBeIsRefused) {
    RuleEstate place;
    const auto write = [&](const PricePlanRecord& plan) {
        return place.service<PricePlanService>().write({.action = test::adds, .plan = plan, .entries = {}});
    };
    EXPECT_TRUE(refuses(write, fullPlan(), [](auto& one) { one.payMethod = 4; }));
    expectRefusals(place, fullPlan(), write);
}

TEST(PricePlanService, twoPlansMayHaveOneName) {
    RuleEstate place;
    auto plan = fullPlan();
    for (const auto* id : {"p2", "p1"}) {
        plan.id = id;
        EXPECT_TRUE(
            isDone(place.service<PricePlanService>().write({.action = test::adds, .plan = plan, .entries = {}})));
    }
    EXPECT_EQ(place.all<PricePlanRecord>().at(0).id, "p2"); // in the order of making
}

TEST(ShortIdService, aShortIdIsAddedChangedAndDeleted) {
    RuleEstate place;
    auto service = place.service<ShortIdService>();
    EXPECT_TRUE(isDone(service.add({.shortId = fullShortId()})));
    EXPECT_EQ(place.all<ShortIdRecord>(), std::vector<ShortIdRecord>{fullShortId()});
    ShortIdRecord empty;
    empty.id = uuid;
    empty.name = u"M";
    EXPECT_TRUE(isDone(service.update({.shortId = empty})));
    EXPECT_EQ(place.all<ShortIdRecord>(), std::vector<ShortIdRecord>{empty});
    EXPECT_TRUE(isDone(service.remove({.id = uuid})));
    EXPECT_TRUE(place.all<ShortIdRecord>().empty());
    EXPECT_FALSE(isDone(service.update({.shortId = empty})));
    EXPECT_FALSE(isDone(service.remove({.id = uuid})));
}

TEST(ShortIdService, whatAShortIdCannotBeIsRefused) {
    RuleEstate place;
    const auto write = [&](const ShortIdRecord& shortId) {
        return place.service<ShortIdService>().add({.shortId = shortId});
    };
    EXPECT_TRUE(refuses(write, fullShortId(), [](auto& one) { one.reservedUntil = 86400; }));
    EXPECT_TRUE(refuses(write, fullShortId(), [](auto& one) { one.reservedUntil = -1; }));
    expectRefusals(place, fullShortId(), write);
}

TEST(UserMessageService, anEmptyDatabaseHasTheBuiltInMessages) {
    RuleEstate place;
    std::u16string names;
    for (const auto& message : place.all<UserMessageRecord>()) {
        EXPECT_TRUE(message.builtIn);
        EXPECT_FALSE(message.caption.empty());
        EXPECT_EQ(message.text.back(), u'.');
        names.append(message.name).append(u",");
    }
    EXPECT_EQ(names, u"Job deleted,Job moved,Job paused,PIN code required,Short id,");
}

TEST(UserMessageService, aMessageIsAddedChangedAndDeleted) {
    RuleEstate place;
    auto service = place.service<UserMessageService>();
    const auto id = wire::toText(uuid);
    EXPECT_TRUE(isDone(service.write({.action = test::adds, .message = fullMessage()})));
    EXPECT_EQ(place.all<UserMessageRecord>(id), std::vector<UserMessageRecord>{fullMessage()});
    auto message = fullMessage();
    message.text = u"Other";
    EXPECT_TRUE(isDone(service.write({.action = test::updates, .message = message})));
    EXPECT_EQ(place.all<UserMessageRecord>(id), std::vector<UserMessageRecord>{message});
    EXPECT_TRUE(isDone(service.remove({.id = uuid})));
    EXPECT_TRUE(place.all<UserMessageRecord>(id).empty());
    EXPECT_FALSE(isDone(service.remove({.id = uuid})));
    EXPECT_FALSE(isDone(service.write({.action = test::updates, .message = message})));
}

TEST(UserMessageService, aBuiltInMessageIsEditedButNotDeletedAndStaysBuiltIn) {
    RuleEstate place;
    auto service = place.service<UserMessageService>();
    auto message = place.all<UserMessageRecord>().at(0);
    message.text = u"In other words";
    message.builtIn = false;
    EXPECT_TRUE(isDone(service.write({.action = test::updates, .message = message})));
    EXPECT_EQ(service.remove({.id = message.id}).text, u"The user message \"Job deleted\" is built in.");
    message.builtIn = true;
    EXPECT_EQ(place.all<UserMessageRecord>().at(0), message);
}

TEST(UserMessageService, aConsoleCannotMakeABuiltInMessage) {
    RuleEstate place;
    auto service = place.service<UserMessageService>();
    auto message = fullMessage();
    message.builtIn = true;
    EXPECT_TRUE(isDone(service.write({.action = test::adds, .message = message})));
    EXPECT_TRUE(isDone(service.write({.action = test::updates, .message = message})));
    EXPECT_FALSE(place.all<UserMessageRecord>(wire::toText(uuid)).at(0).builtIn);
    EXPECT_TRUE(isDone(service.remove({.id = uuid})));
}

TEST(UserMessageService, whatAMessageCannotBeIsRefused) {
    RuleEstate place;
    const auto write = [&](const UserMessageRecord& message) {
        return place.service<UserMessageService>().write({.action = test::adds, .message = message});
    };
    EXPECT_TRUE(refuses(write, fullMessage(), [](auto& one) { one.type = 0; }));
    EXPECT_TRUE(refuses(write, fullMessage(), [](auto& one) { one.type = 4; }));
    EXPECT_TRUE(refuses(write, fullMessage(), [](auto& one) { one.icon = 4; }));
    expectRefusals(place, fullMessage(), write, 5);
}

TEST(UserMessageService, whatShowsADeletedMessageStaysAsItIs) {
    RuleEstate place;
    EXPECT_TRUE(isDone(place.service<UserMessageService>().write({.action = test::adds, .message = fullMessage()})));
    EXPECT_TRUE(isDone(place.service<PageLimitService>().write({.action = test::adds, .limit = fullLimit()})));
    EXPECT_TRUE(isDone(place.service<UserMessageService>().remove({.id = uuid})));
    EXPECT_EQ(place.connection().table<PageLimitTable>().find(std::string("l1")), fullLimit());
    EXPECT_TRUE(isDone(place.service<PageLimitService>().write({.action = test::updates, .limit = fullLimit()})));
}

} // namespace
} // namespace server
