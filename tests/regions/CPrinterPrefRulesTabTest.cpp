#include "regions/CPrinterPrefRulesTab.h"

#include "forms/Form.h"
#include "forms/Tabs.h"
#include "regions/AddTabRuleDlg.h"
#include "tests/regions/RulesFixture.h"

namespace {

using platform::Answer;
using protocol::AddRuleEntryRequest;
using regions::AddTabRuleDlg;

// A dialog with nothing but the page of rules.
class TabForm final : public forms::Form {
public:
    explicit TabForm(platform::Platform& platform, std::string ownerId)
        : Form(platform, u"Properties"), ownerId_(std::move(ownerId)) {}

    forms::Tabs tabs{*this};
    regions::CPrinterPrefRulesTab tab{tabs};

protected:
    void onInitDialog() override { tab.open(ownerId_); }

private:
    std::string ownerId_;
};

class RulesTab : public RulesFixture {
protected:
    RulesTab() {
        auto quota = samples::entry("e1", 2, u"Quota");
        auto prices = samples::entry("e2", 3, u"Prices");
        estate_.entries["p1"] = {quota, prices};
        form_.open();
    }

    TabForm form_{platform_, "p1"};
    rules::RuleEntryList& rules_ = form_.tab.rules;
};

TEST_F(RulesTab, listsTheRulesOfThePrinterUnderTheColumnsOfThePage) {
    const auto& columns = rules_.list.columns();

    EXPECT_EQ(form_.tab.page.title(), u"Rules");
    ASSERT_EQ(columns.size(), 3U);
    EXPECT_EQ(columns[0].title, u"Rule type");
    EXPECT_EQ(columns[1].title, u"Rule name");
    EXPECT_EQ(columns[2].title, u"Rule affected");
    ASSERT_EQ(rules_.list.rows().size(), 2U);
    EXPECT_EQ(rules_.list.rows()[0].cells, (Names{u"Page limit", u"Quota", u"Staff"}));
    EXPECT_EQ(rules_.list.rows()[1].cells, (Names{u"Price Plan", u"Prices", u"Staff"}));
    EXPECT_EQ(estate_.requests(1), Strings{"61: 02 00 70 31 00 00 00 00"});
}

TEST_F(RulesTab, addsARuleToThePrinterAndListsAgain) {
    platform_.ui.expect<AddTabRuleDlg>([this](AddTabRuleDlg& adder) {
        samples::choose(adder.fields.type, u"Handover");
        adder.fields.name.userTyped(u"At the desk");
        estate_.entries["p1"].push_back(samples::entry("e3", 4, u"At the desk"));
        adder.okButton().userPressed();
    });

    rules_.addButton.userPressed();

    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).ownerId, "p1");
    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).ownerNumber, 0);
    EXPECT_EQ(rules_.list.rows().size(), 3U);
}

TEST_F(RulesTab, appliesARuleGroupToThePrinterAsItsParent) {
    platform_.ui.expect<AddTabRuleDlg>([](AddTabRuleDlg& adder) {
        adder.fields.name.userTyped(u"Rules of students");
        adder.okButton().userPressed();
    });

    rules_.addButton.userPressed();

    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).ownerId, "group1");
    EXPECT_EQ(estate_.change<AddRuleEntryRequest>(1).parentId, "p1");
    EXPECT_EQ(rules_.list.rows().size(), 2U); // of the printer, not of the group
}

TEST_F(RulesTab, removesARuleAfterAQuestionAndListsAgain) {
    EXPECT_FALSE(rules_.removeButton.enabled());
    rules_.list.userSelected(1);
    EXPECT_TRUE(rules_.removeButton.enabled());
    platform_.ui.expectBox(Answer::ok, u"Are you sure you want to delete this rule entry?");
    estate_.entries["p1"].pop_back();

    rules_.removeButton.userPressed();

    EXPECT_EQ(estate_.changes(1), Strings{"62: 03 02 00 65 32 03 00"});
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, 1U);
    EXPECT_EQ(rules_.list.rows().size(), 1U);
    EXPECT_FALSE(rules_.removeButton.enabled());
}

TEST_F(RulesTab, keepsARuleWhenTheQuestionIsCancelled) {
    rules_.list.userSelected(0);
    platform_.ui.expectBox(Answer::cancel);

    rules_.removeButton.userPressed();

    EXPECT_EQ(estate_.changes(0), Strings{});
    EXPECT_EQ(platform_.commands(), Strings{"ListRuleEntries"});
}

TEST_F(RulesTab, showsTheServersWordForATypeThatTheConsoleDoesNotKnow) {
    estate_.entries["p1"] = {samples::entry("e9", 99, u"Odd")};
    TabForm form(platform_, "p1");

    form.open();

    EXPECT_EQ(form.tab.rules.list.rows()[0].cells[0], u"Type Odd");
}

TEST_F(RulesTab, offersNoRulesForAPrinterThatHasNoIdYet) {
    TabForm form(platform_, "");

    form.open();

    EXPECT_FALSE(form.tab.rules.addButton.enabled());
    EXPECT_EQ(platform_.commands(), Strings{"ListRuleEntries"}); // of the other form
}

TEST_F(RulesTab, staysEmptyWhenTheRulesCouldNotBeRead) {
    estate_.goOffline();
    TabForm form(platform_, "p1");

    form.open();

    EXPECT_TRUE(form.tab.rules.list.rows().empty());
    EXPECT_FALSE(form.tab.rules.removeButton.enabled());
}

} // namespace
