#include "tests/hosts/ctl/VantrelctlFixture.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace hosttest {
namespace {

using testing::Contains;
using testing::HasSubstr;
using testing::Not;

// Editing rules from a shell, nested dialogs included.
class RulesCtl : public VantrelctlFixture {
protected:
    void SetUp() override { startServerWithSample(); }

    [[nodiscard]] Json call(Arguments arguments) const {
        arguments.insert(arguments.begin(), "call");
        return Json::parse(output(arguments));
    }
    [[nodiscard]] Json records(const Arguments& arguments) const { return call(arguments).at("records"); }
    // The record of a list with that name; null without one.
    static Json called(const Json& records, const std::string& name) {
        const auto found =
            std::find_if(records.begin(), records.end(), [&](const auto& one) { return one.at("name") == name; });
        return found == records.end() ? Json() : *found;
    }
    [[nodiscard]] Json entriesOf(const std::string& group) const {
        const auto id = called(records({"ListRuleGroups", "str8:"}), group).at("id").get<std::string>();
        return records({"ListRuleEntries", "str8:" + id, "u32:0"});
    }
    [[nodiscard]] std::vector<std::string> groups() const {
        const auto list = json({"show", "Rules/Rule Groups"});
        std::vector<std::string> names;
        for (const auto& row : list.at("rows")) {
            names.push_back(row.at(0));
        }
        return names;
    }
    // The steps of a new group follow.
    static Arguments newGroup(const Arguments& steps) {
        Arguments command{"run", "Rules/Rule Groups", "New Rule Group..."};
        command.insert(command.end(), steps.begin(), steps.end());
        return command;
    }
};

TEST_F(RulesCtl, theBranchHoldsItsFourListsInTheirOrder) {
    EXPECT_EQ(below("Rules"), (std::vector<std::string>{"Rule Groups", "Price Plans", "Page Limiters", "Short Id"}));
}

TEST_F(RulesCtl, aGroupIsMadeWithALimitAMessageAndSomebodyAffectedInOneGoOfNestedDialogs) {
    carryOut(newGroup({"--set",   "Group Name=First years",
                       "--set",   "Group Comment=Until spring",
                       "--press", "Add...", //
                       "--set",   "Name=Quota of first years",
                       "--set",   "Comment=Ten pages", //
                       "--set",   "Affected=<New>",
                       "--set",   "Name=first-years",
                       "--set",   "Equals=IS",
                       "--press", "OK", //
                       "--set",   "Limits=<New>",
                       "--set",   "Name=Ten pages a job",
                       "--set",   "Max pages=10",  //
                       "--set",   "Action=Delete", //
                       "--set",   "Message=<New>",
                       "--set",   "Message name=Too long",
                       "--set",   "Caption=Stopped", //
                       "--set",   "Text=More than ten pages",
                       "--press", "OK", //
                       "--press", "OK",
                       "--press", "OK",
                       "--press", "OK"}));

    EXPECT_THAT(groups(), Contains("First years"));
    const auto entries = entriesOf("First years");
    ASSERT_EQ(entries.size(), 1U);
    const auto& entry = entries.at(0);
    EXPECT_EQ(entry.at("type"), 2);
    EXPECT_EQ(entry.at("typeText"), "Page limit");
    EXPECT_EQ(entry.at("name"), "Quota of first years");
    EXPECT_EQ(entry.at("comment"), "Ten pages");
    EXPECT_EQ(entry.at("affectedName"), "first-years");
    const auto affected = called(records({"ListAffected", "str8:"}), "first-years");
    EXPECT_EQ(entry.at("affectedId"), affected.at("id"));
    EXPECT_EQ(affected.at("type"), 2);
    const auto target = entry.at("targetId").get<std::string>();
    const auto limit = call({"GetPageLimit", "str8:" + target}).at("reply");
    EXPECT_EQ(limit.at("name"), "Ten pages a job");
    EXPECT_EQ(limit.at("maxPages"), 10);
    EXPECT_EQ(limit.at("action"), 2);
    const auto message = called(records({"ListUserMessages", "u8:1", "str8:"}), "Too long");
    EXPECT_EQ(limit.at("messageId"), message.at("id"));
    EXPECT_EQ(message.at("text"), "More than ten pages");
}

TEST_F(RulesCtl, cancellingANewGroupLeavesNothingOfItOnTheServer) {
    const auto before = records({"ListRuleGroups", "str8:"});

    carryOut(newGroup({"--set", "Group Name=First years", "--press", "Add...", "--set", "Type=Handover", "--set",
                       "Name=At the desk", "--press", "OK", "--press", "Cancel"}));

    EXPECT_EQ(records({"ListRuleGroups", "str8:"}), before);
}

TEST_F(RulesCtl, aNewGroupWhoseStepsFailLeavesNothingOfItOnTheServer) {
    const auto before = records({"ListRuleGroups", "str8:"});

    const auto outcome = ctl(newGroup({"--press", "No such button"}));

    EXPECT_NE(outcome.status, 0);
    EXPECT_EQ(records({"ListRuleGroups", "str8:"}), before);
}

TEST_F(RulesCtl, aGroupWithoutANameIsRefusedWithTheReason) {
    const auto before = records({"ListRuleGroups", "str8:"});

    const auto outcome = ctl(newGroup({"--press", "OK"}));

    EXPECT_NE(outcome.status, 0);
    EXPECT_THAT(outcome.errors, HasSubstr("Group name can not be empty, please provide a group name"));
    EXPECT_EQ(records({"ListRuleGroups", "str8:"}), before);
}

TEST_F(RulesCtl, anEntryWithAPlanAndOneWithAShortIdAreMade) {
    carryOut(newGroup({"--set",   "Group Name=Visitors",
                       "--press", "Add...",
                       "--set",   "Type=Price plan",
                       "--set",   "Name=Prices",
                       "--set",   "Plans=<New>",
                       "--set",   "Name=For visitors",
                       "--set",   "VAT (%)=7.5",
                       "--press", "OK",
                       "--press", "OK", //
                       "--press", "Add...",
                       "--set",   "Type=Short Id",
                       "--set",   "Name=Times",
                       "--set",   "Short Ids=<New>",
                       "--set",   "Name=A visit",
                       "--press", "OK",
                       "--press", "OK",
                       "--press", "OK"}));

    const auto entries = entriesOf("Visitors");
    ASSERT_EQ(entries.size(), 2U);
    const auto prices = called(entries, "Prices");
    const auto times = called(entries, "Times");
    EXPECT_EQ(prices.at("targetId"), called(records({"ListPricePlans", "str8:"}), "For visitors").at("id"));
    EXPECT_EQ(times.at("targetId"), called(records({"ListShortIds"}), "A visit").at("id"));
    EXPECT_EQ(times.at("type"), 10);
}

TEST_F(RulesCtl, anEntryIsEditedAndRemovedByItsRow) {
    carryOut(newGroup({"--set", "Group Name=Visitors", "--press", "Add...", "--set", "Type=Handover", "--set",
                       "Name=At the desk", "--set", "Affected=<New>", "--set", "Name=visitors", "--press", "OK",
                       "--press", "OK", "--press", "OK"}));
    const Arguments edit{"run", "Rules/Rule Groups", "Edit rule group", "--row", "Visitors"};

    auto editEntry = edit;
    editEntry.insert(editEntry.end(), {"--set", "Rules=At the desk", "--press", "Edit...", "--set",
                                       "Comment=By the porter", "--press", "OK", "--press", "OK"});
    carryOut(editEntry);
    const auto edited = entriesOf("Visitors");
    ASSERT_EQ(edited.size(), 1U);
    EXPECT_EQ(edited.at(0).at("comment"), "By the porter");
    EXPECT_EQ(edited.at(0).at("type"), 7); // the type that the dialog shows

    auto removeEntry = edit;
    removeEntry.insert(removeEntry.end(),
                       {"--set", "Rules=At the desk", "--press", "Remove", "--answer", "ok", "--press", "Cancel"});
    carryOut(removeEntry);
    EXPECT_EQ(entriesOf("Visitors").size(), 0U);

    carryOut({"run", "Rules/Rule Groups", "Remove rule group", "--row", "Visitors", "--answer", "ok"});
    EXPECT_THAT(groups(), Not(Contains("Visitors")));
}

} // namespace
} // namespace hosttest
