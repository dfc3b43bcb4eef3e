#include "protocol/rules/Affected.h"
#include "protocol/rules/RuleEntry.h"
#include "protocol/rules/RuleGroup.h"
#include "tests/protocol/rules/RuleBytes.h"

namespace protocol {
namespace {

using namespace test; // the checks

const RuleGroupRecord ordinaryGroup{.id = "g1", .name = u"Ä", .comment = u"C", .extra1 = u"x", .extra2 = {}};
const std::string behindGroupName = "02 00 43 00 02 00 78 00 00 00";
const std::string groupFields = "02 00 67 31 02 00 C4 00" + behindGroupName;

RuleEntryRecord ordinaryRuleEntry() {
    return {.type = ruleEntryType::shortId,
            .id = "e1",
            .typeText = u"T",
            .name = u"N",
            .comment = u"C",
            .affectedName = u"A",
            .targetId = "t",
            .parentId = "p",
            .affectedId = "a"};
}
const std::string beforeEntryName = "0A 02 00 65 31 02 00 54 00";
const std::string behindEntryName = "02 00 43 00 02 00 41 00 01 00 74 01 00 70 01 00 61";
const std::string ruleEntryFields = beforeEntryName + "02 00 4E 00" + behindEntryName;

TEST(RuleGroupRecord, theTextsOfTheServerAreCarriedAlong) {
    expectFields(ordinaryGroup, groupFields);
    expectNoShorterMessage<RuleGroupRecord>(groupFields);
    expectFields(RuleGroupRecord{}, "00 00 00 00 00 00 00 00 00 00");
}

TEST(RuleGroupRecord, namesOfEveryKindTravel) {
    expectNames<RuleGroupRecord>("02 00 67 31", behindGroupName);
}

TEST(WriteRuleGroupRequest, isTheActionAndTheGroup) {
    expectFields(WriteRuleGroupRequest{.action = 1, .group = ordinaryGroup}, "01" + groupFields);
    expectFields(WriteRuleGroupRequest{.action = 2, .group = ordinaryGroup}, "02" + groupFields);
}

TEST(DeleteRuleGroupRequest, isActionThreeAndTheId) {
    expectFields(DeleteRuleGroupRequest{.id = "g1"}, "03 02 00 67 31");
}

TEST(ListRuleGroupsRequest, anEmptyFilterListsAll) {
    expectFields(ListRuleGroupsRequest{}, "00 00");
}

TEST(AffectedRecord, typeAndEqualsFollowTheIdInAReply) {
    const std::string fields = "02 00 61 31 02 00 02 00 4E 00";
    expectFields(AffectedRecord{.id = "a1", .type = 2, .equals = 0, .name = u"N"}, fields);
    expectNoShorterMessage<AffectedRecord>(fields);
    expectNames<AffectedRecord>("02 00 61 31 02 00", "");
    expectFields(AffectedRecord{.id = {}, .type = 0, .equals = 0, .name = {}}, "00 00 00 00 00 00");
}

TEST(WriteAffectedRequest, equalsStandsBeforeTheIdAndTheTypeBehindIt) {
    expectFields(WriteAffectedRequest{.action = 1, .equals = 0, .id = "a1", .type = 2, .name = u"N"},
                 "01 00 02 00 61 31 02 02 00 4E 00");
    expectFields(WriteAffectedRequest{.action = 2, .equals = 1, .id = "a1", .type = 1, .name = u"N"},
                 "02 01 02 00 61 31 01 02 00 4E 00");
    expectNames<WriteAffectedRequest>("01 00 02 00 61 31 02", "");
}

TEST(DeleteAffectedRequest, isActionThreeAndTheId) {
    expectFields(DeleteAffectedRequest{.id = "a1"}, "03 02 00 61 31");
}

TEST(ListAffectedRequest, anEmptyFilterListsAll) {
    expectFields(ListAffectedRequest{}, "00 00");
}

TEST(RuleEntryRecord, theTypeComesFirst) {
    expectFields(ordinaryRuleEntry(), ruleEntryFields);
    expectNoShorterMessage<RuleEntryRecord>(ruleEntryFields);
}

TEST(RuleEntryRecord, aNewOneHasNoTextForItsType) {
    expectFields(RuleEntryRecord{}, "00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
    EXPECT_EQ(RuleEntryRecord{}.typeText, u"");
}

TEST(RuleEntryRecord, namesOfEveryKindTravel) {
    expectNames<RuleEntryRecord>(beforeEntryName, behindEntryName);
}

TEST(ListRuleEntriesRequest, isTheIdOfTheOwnerOrTheNumberOfARegion) {
    expectFields(ListRuleEntriesRequest{.ownerId = "g1"}, "02 00 67 31 00 00 00 00");
    expectFields(ListRuleEntriesRequest{.ownerId = {}, .ownerNumber = 12}, "00 00 0C 00 00 00");
}

TEST(ListRuleEntriesRequest, noIdAndNoNumberIsTheFormOfRegionZero) {
    expectFields(ListRuleEntriesRequest{}, "00 00 00 00 00 00");
}

TEST(RemoveRuleEntryRequest, isAThreeTheIdAndTheTypeInTwoBytes) {
    expectFields(RemoveRuleEntryRequest{.id = "e1", .type = 10}, "03 02 00 65 31 0A 00");
}

TEST(AddRuleEntryRequest, theNumberAndTheTwoIdsStandBeforeTheEntry) {
    expectFields(AddRuleEntryRequest{.ownerNumber = 0, .parentId = "p", .ownerId = "g1", .entry = ordinaryRuleEntry()},
                 "05 00 00 00 00 01 00 70 02 00 67 31" + ruleEntryFields);
    expectFields(AddRuleEntryRequest{.ownerNumber = 12, .parentId = {}, .ownerId = {}, .entry = ordinaryRuleEntry()},
                 "05 0C 00 00 00 00 00 00 00" + ruleEntryFields);
}

TEST(UpdateRuleEntryRequest, isActionEightyEight) {
    expectFields(UpdateRuleEntryRequest{.entry = ordinaryRuleEntry()}, "58" + ruleEntryFields);
}

TEST(RuleEntryType, eachHasItsLabel) {
    std::u16string all;
    std::vector<std::uint8_t> types;
    for (const auto& [type, label] : ruleEntryType::labels) {
        types.push_back(type);
        all.append(label).append(u",");
    }

    EXPECT_EQ(types, (std::vector<std::uint8_t>{1, 2, 3, 4, 5, 6, 7, 10}));
    EXPECT_EQ(all, u"Rule group,Page limit,Price plan,Handover,Parse print job,SNMP query printer,Client billing,"
                   u"Short Id,");
}

} // namespace
} // namespace protocol
