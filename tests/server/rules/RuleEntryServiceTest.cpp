#include "server/rules/RuleEntryService.h"

#include "tests/server/rules/RuleEstate.h"

namespace server {
namespace {

using test::RuleEstate;
using Ids = std::vector<std::string>;
namespace entryType = protocol::ruleEntryType;

TEST(RuleEntryService, anEntryStandsOnAGroupAPrinterAQueueOrARegion) {
    RuleEstate place;
    const auto region = place.addRegion(u"North");
    const auto local = place.addRegion(u"Home", 0, 1);
    const auto printer = place.addPrinter(u"P", region);
    const auto queue = place.addQueue(u"Q", printer);
    place.addGroup("g1");
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("ofGroup"), "g1")));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("ofPrinter"), printer)));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("ofQueue"), queue)));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("ofRegion"), "", region)));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("ofLocalRegion"), "", local)));
    EXPECT_EQ(place.entryIds("g1"), Ids{"ofGroup"});
    EXPECT_EQ(place.entryIds(printer), Ids{"ofPrinter"});
    EXPECT_EQ(place.entryIds(queue), Ids{"ofQueue"});
    EXPECT_EQ(place.entryIds("", region), Ids{"ofRegion"});
    EXPECT_EQ(place.entryIds("", local), Ids{"ofLocalRegion"});
    EXPECT_EQ(place.entryIds("nobody"), Ids{});
    EXPECT_EQ(place.entryIds("", -1), Ids{});
}

TEST(RuleEntryService, noIdAndTheNumberZeroIsTheListOfRegionZeroAndNoError) {
    RuleEstate place;
    const auto region = place.addRegion(u"North");
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e1"), "", 0)));
    EXPECT_EQ(place.entryIds("", 0), Ids{"e1"});
    EXPECT_EQ(place.entryIds("", region), Ids{});
}

TEST(RuleEntryService, theServerTellsTheTextOfEachType) {
    RuleEstate place;
    place.addGroup("g1");
    std::u16string texts;
    for (const auto& [type, label] : entryType::labels) {
        auto entry = RuleEstate::namedEntry("e" + std::to_string(type), type);
        EXPECT_EQ(entry.typeText, u"");
        EXPECT_TRUE(isDone(place.place(entry, "", 0)));
    }
    for (const auto& entry : place.entries("")) {
        texts.append(entry.typeText).append(u",");
    }
    EXPECT_EQ(texts, u"Rule group,Page limit,Price plan,Handover,Parse print job,SNMP query printer,Client billing,"
                     u"Short Id,");
}

TEST(RuleEntryService, theTextOfTheTypeThatComesIsNotLookedAt) {
    RuleEstate place;
    auto entry = RuleEstate::namedEntry("e1");
    entry.typeText = test::tooLongText();
    EXPECT_TRUE(isDone(place.place(entry, "")));
    EXPECT_EQ(place.entries("").at(0).typeText, u"Handover");
}

TEST(RuleEntryService, allOtherFieldsAreKept) {
    RuleEstate place;
    const protocol::RuleEntryRecord entry{.type = entryType::shortId,
                                          .id = "e1",
                                          .typeText = u"Short Id",
                                          .name = {u'N', 0xD83D, 0xDE00},
                                          .comment = u"C",
                                          .affectedName = u"A",
                                          .targetId = "target",
                                          .parentId = "parent",
                                          .affectedId = "affected"};
    EXPECT_TRUE(isDone(place.place(entry, "", 0, "another parent")));
    EXPECT_EQ(place.entries("").at(0), entry);
    auto changed = entry;
    changed.name = u"M";
    changed.targetId = "other";
    changed.affectedName = {};
    EXPECT_TRUE(isDone(place.service<RuleEntryService>().update({.entry = changed})));
    EXPECT_EQ(place.entries("").at(0), changed);
}

TEST(RuleEntryService, anEntryWithoutAParentGetsTheOneOfTheCommand) {
    RuleEstate place;
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e1"), "", 0, "parent")));
    EXPECT_EQ(place.entries("").at(0).parentId, "parent");
}

TEST(RuleEntryService, anEntryThatAppliesAGroupInARegionNamesThatGroupAsItsOwnerToo) {
    RuleEstate place;
    const auto region = place.addRegion(u"North");
    place.addGroup("g1");
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e1", entryType::ruleGroup, "g1"), "g1", region)));
    EXPECT_EQ(place.entryIds("", region), Ids{"e1"});
    EXPECT_EQ(place.entryIds("g1"), Ids{});
}

TEST(RuleEntryService, anEntryThatAppliesAGroupOnAPrinterIsFoundByItsParent) {
    RuleEstate place;
    const auto printer = place.addPrinter(u"P", place.addRegion(u"North"));
    place.addGroup("g1");
    const auto entry = RuleEstate::namedEntry("e1", entryType::ruleGroup, "g1");
    EXPECT_EQ(place.place(entry, "g1").text, u"The rule entry does not say where to apply its rule group.");
    EXPECT_TRUE(isDone(place.place(entry, "g1", 0, printer)));
    EXPECT_EQ(place.entryIds(printer), Ids{"e1"});
    EXPECT_EQ(place.entryIds("g1"), Ids{});
    EXPECT_EQ(place.entryIds(""), Ids{});
}

TEST(RuleEntryService, groupsDoNotNest) {
    RuleEstate place;
    place.addGroup("g1");
    place.addGroup("g2");
    EXPECT_FALSE(isDone(place.place(RuleEstate::namedEntry("e1", entryType::ruleGroup, "g2"), "g1")));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e1"), "g1")));
    const auto nested = RuleEstate::namedEntry("e1", entryType::ruleGroup, "g2");
    EXPECT_FALSE(isDone(place.service<RuleEntryService>().update({.entry = nested})));
    EXPECT_EQ(place.entries("g1").at(0).type, entryType::handover);
}

TEST(RuleEntryService, entriesKeepTheOrderInWhichTheyWereMade) {
    RuleEstate place;
    place.addGroup("g1");
    for (const auto* id : {"z", "a", "m"}) {
        EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry(id), "g1")));
    }
    EXPECT_TRUE(isDone(place.service<RuleEntryService>().update({.entry = RuleEstate::namedEntry("z")})));
    EXPECT_EQ(place.entryIds("g1"), (Ids{"z", "a", "m"}));
}

TEST(RuleEntryService, anEditMayGiveAnEntryAnotherType) {
    RuleEstate place;
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e1", entryType::pageLimit, "l1"), "")));
    EXPECT_TRUE(isDone(place.service<RuleEntryService>().update(
        {.entry = RuleEstate::namedEntry("e1", entryType::clientBilling, "l1")})));
    EXPECT_EQ(place.entries("").at(0).typeText, u"Client billing");
}

TEST(RuleEntryService, whatCannotBePlacedIsRefused) {
    RuleEstate place;
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("taken"), "")));
    EXPECT_FALSE(isDone(place.place(RuleEstate::namedEntry("taken"), "")));
    EXPECT_FALSE(isDone(place.place(RuleEstate::namedEntry(""), "")));
    EXPECT_FALSE(isDone(place.place(RuleEstate::namedEntry(std::string(65, 'x')), "")));
    EXPECT_FALSE(isDone(place.place(RuleEstate::namedEntry("e1"), "nobody")));
    EXPECT_FALSE(isDone(place.place(RuleEstate::namedEntry("e1"), "", 4711)));
    EXPECT_FALSE(isDone(place.place(RuleEstate::namedEntry("e1"), "", -1)));
    for (const auto type : std::initializer_list<std::uint8_t>{0, 8, 9, 11, 255}) {
        EXPECT_FALSE(isDone(place.place(RuleEstate::namedEntry("e1", type), ""))) << int{type};
    }
    auto entry = RuleEstate::namedEntry("e1");
    entry.name.clear();
    EXPECT_FALSE(isDone(place.place(entry, "")));
    entry.name = u"N";
    entry.comment = test::tooLongText();
    EXPECT_FALSE(isDone(place.place(entry, "")));
    EXPECT_EQ(place.entryIds(""), Ids{"taken"});
}

TEST(RuleEntryService, anUpdateOfAnEntryThatIsNotThereIsRefused) {
    RuleEstate place;
    EXPECT_EQ(place.service<RuleEntryService>().update({.entry = RuleEstate::namedEntry("e1")}).text,
              u"There is no such rule entry any more.");
    EXPECT_EQ(place.entryIds(""), Ids{});
}

TEST(RuleEntryService, anEntryIsRemovedByItsIdWhateverItsType) {
    RuleEstate place;
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e1"), "")));
    EXPECT_TRUE(isDone(place.service<RuleEntryService>().remove({.id = "e1", .type = 99})));
    EXPECT_FALSE(isDone(place.service<RuleEntryService>().remove({.id = "e1", .type = 4})));
    EXPECT_EQ(place.entryIds(""), Ids{});
}

TEST(RuleEntryService, entriesGoWithThePrinterTheQueueAndTheRegionThatTheyStandOn) {
    RuleEstate place;
    const auto region = place.addRegion(u"North");
    const auto printer = place.addPrinter(u"P", region);
    const auto queue = place.addQueue(u"Q", printer);
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e1"), printer)));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e2"), queue)));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e3"), "", region)));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e4"), "")));
    EXPECT_TRUE(isDone(place.recordService().remove({.type = protocol::RecordDeletion::printer, .id = printer})));
    EXPECT_EQ(place.entryIds(printer), Ids{});
    EXPECT_EQ(place.entryIds(queue), Ids{});
    EXPECT_TRUE(isDone(place.regionService().remove({.regionId = region, .kind = 0})));
    EXPECT_EQ(place.entryIds("", region), Ids{});
    EXPECT_EQ(place.entryIds(""), Ids{"e4"});
    for (const auto* id : {"e1", "e2", "e3"}) {
        EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry(id), ""))) << id;
    }
}

TEST(RuleEntryService, entriesWhoseTargetIsGoneStayAndAreListed) {
    RuleEstate place;
    protocol::PageLimitRecord limit;
    limit.id = "l1";
    limit.name = u"L";
    EXPECT_TRUE(isDone(place.service<PageLimitService>().write({.action = test::adds, .limit = limit})));
    const auto entry = RuleEstate::namedEntry("e1", entryType::pageLimit, "l1");
    EXPECT_TRUE(isDone(place.place(entry, "")));
    EXPECT_TRUE(isDone(place.service<PageLimitService>().remove({.id = "l1"})));
    EXPECT_EQ(place.entries("").at(0).targetId, "l1");
    EXPECT_TRUE(isDone(place.service<RuleEntryService>().update({.entry = entry})));
}

} // namespace
} // namespace server
