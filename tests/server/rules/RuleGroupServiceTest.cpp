#include "server/rules/RuleGroupService.h"

#include "tests/server/rules/RuleEstate.h"

namespace server {
namespace {

using protocol::RuleGroupRecord;
using test::RuleEstate;
using Groups = std::vector<RuleGroupRecord>;

TEST(RuleGroupService, aGroupKeepsAllFieldsThatItComesWith) {
    RuleEstate place;
    const RuleGroupRecord group{.id = "g1", .name = {0xD83D, 0xDE00}, .comment = u"C", .extra1 = u"1", .extra2 = u"2"};
    EXPECT_TRUE(isDone(place.service<RuleGroupService>().write({.action = test::adds, .group = group})));
    EXPECT_EQ(place.all<RuleGroupRecord>(), Groups{group});
    auto changed = group;
    changed.name = u"N";
    changed.extra2 = {};
    EXPECT_TRUE(isDone(place.service<RuleGroupService>().write({.action = test::updates, .group = changed})));
    EXPECT_EQ(place.all<RuleGroupRecord>(), Groups{changed});
}

TEST(RuleGroupService, aGroupMayBeMadeBeforeItHasAName) {
    RuleEstate place;
    place.addGroup("g1", u"");
    place.addGroup("g2", u"");
    EXPECT_EQ(place.all<RuleGroupRecord>().size(), 2U);
}

TEST(RuleGroupService, groupsOfOneNameMayStandBesideEachOther) {
    RuleEstate place;
    place.addGroup("g1", u"Name");
    place.addGroup("g2", u"NAME");
    EXPECT_EQ(place.all<RuleGroupRecord>().size(), 2U);
}

TEST(RuleGroupService, aSecondOneWithTheSameIdIsRefusedAndChangesNothing) {
    RuleEstate place;
    place.addGroup("g1", u"First");
    const auto group = RuleEstate::namedGroup("g1", u"Second");
    EXPECT_EQ(place.service<RuleGroupService>().write({.action = test::adds, .group = group}).text,
              u"There is a rule group with this id already.");
    EXPECT_EQ(place.all<RuleGroupRecord>().at(0).name, u"First");
}

TEST(RuleGroupService, anIdIsNeitherEmptyNorLongNorThatOfAPrinter) {
    RuleEstate place;
    const auto printer = place.addPrinter(u"P", place.addRegion(u"North"));
    for (const auto& id : {std::string(), std::string(65, 'x'), printer}) {
        const auto group = RuleEstate::namedGroup(id, u"N");
        EXPECT_FALSE(isDone(place.service<RuleGroupService>().write({.action = test::adds, .group = group}))) << id;
    }
    EXPECT_TRUE(place.all<RuleGroupRecord>().empty());
    place.addGroup(std::string(64, 'x'));
}

TEST(RuleGroupService, anUpdateOrADeleteOfWhatIsGoneIsRefused) {
    RuleEstate place;
    const auto group = RuleEstate::namedGroup("gone", u"N");
    EXPECT_EQ(place.service<RuleGroupService>().write({.action = test::updates, .group = group}).text,
              u"There is no such rule group any more.");
    EXPECT_FALSE(isDone(place.service<RuleGroupService>().remove({.id = "gone"})));
    EXPECT_TRUE(place.all<RuleGroupRecord>().empty());
}

TEST(RuleGroupService, aGroupTooLongToBeReceivedIsRefused) {
    RuleEstate place;
    auto group = RuleEstate::namedGroup("g1", test::tooLongText());
    EXPECT_FALSE(isDone(place.service<RuleGroupService>().write({.action = test::adds, .group = group})));
    group.name.resize((65535 - 5 - 10 - 2) / 2);
    EXPECT_TRUE(isDone(place.service<RuleGroupService>().write({.action = test::adds, .group = group})));
}

TEST(RuleGroupService, deletingAGroupDeletesItsEntriesInOneCommandAndNoOthers) {
    RuleEstate place;
    const auto region = place.addRegion(u"North");
    place.addGroup("g1");
    place.addGroup("g2");
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e1"), "g1")));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e2"), "g2")));
    EXPECT_TRUE(isDone(place.place(RuleEstate::namedEntry("e3", 1, "g1"), "", region))); // applies the group
    EXPECT_TRUE(isDone(place.service<RuleGroupService>().remove({.id = "g1"})));
    EXPECT_TRUE(place.entryIds("g1").empty());
    EXPECT_EQ(place.entryIds("g2"), std::vector<std::string>{"e2"});
    EXPECT_EQ(place.entryIds("", region), std::vector<std::string>{"e3"});
    EXPECT_FALSE(isDone(place.service<RuleEntryService>().remove({.id = "e1", .type = 4})));
}

TEST(RuleGroupService, groupsAreListedByNameAndOneByItsId) {
    RuleEstate place;
    place.addGroup("g1", u"b");
    place.addGroup("g2", u"A");
    place.addGroup("g3", u"b");
    std::string order;
    for (const auto& group : place.all<RuleGroupRecord>()) {
        order += group.id;
    }
    EXPECT_EQ(order, "g2g1g3");
    EXPECT_EQ(place.all<RuleGroupRecord>("g3").size(), 1U);
    EXPECT_TRUE(place.all<RuleGroupRecord>("g4").empty());
}

} // namespace
} // namespace server
