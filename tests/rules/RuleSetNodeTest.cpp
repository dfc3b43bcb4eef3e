#include "rules/RuleSetNode.h"

#include "protocol/rules/RuleGroup.h"
#include "rules/NewRuleGroupDlg.h"
#include "tests/rules/RuleSamples.h"
#include "tests/rules/RuleTree.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Key;
using rules::NewRuleGroupDlg;

class RuleSet : public RuleTree {
protected:
    RuleSet() { estate_.groups = {samples::group("g2", u"Teachers"), samples::group("g1", u"Students")}; }

    std::shared_ptr<rules::RuleSetNode> node_ = standing<rules::RuleSetNode>();
};

TEST_F(RuleSet, isReadWhenItIsShownInTheOrderOfTheServer) {
    EXPECT_TRUE(platform_.commands().empty());

    show(console_, *node_);

    EXPECT_EQ(node_->displayName(), u"Rule Groups");
    EXPECT_EQ(estate_.requests(1), Strings{"57: 00 00"});
    EXPECT_EQ(console_.titles(), (Names{u"Rule Group Name", u"Rule Group Comment"}));
    EXPECT_EQ(console_.table(), (Table{{u"Teachers", u"Comment of Teachers"}, {u"Students", u"Comment of Students"}}));
    EXPECT_EQ(console_.columns[0].width, 200);
    EXPECT_EQ(console_.columns[1].width, 300);
}

TEST_F(RuleSet, isReadAnewWheneverItIsShown) {
    show(console_, *node_);
    estate_.groups.pop_back();

    show(console_, *node_);

    EXPECT_EQ(console_.table().size(), 1U);
}

TEST_F(RuleSet, isNotReadByAChangeOfTheWindow) {
    show(console_, *node_);

    show(console_, *node_, false);
    refresh(console_, *node_, node_->scopeFields().ID);

    EXPECT_EQ(platform_.commands(), Strings{"ListRuleGroups"});
    EXPECT_EQ(console_.table().size(), 2U);
}

TEST_F(RuleSet, hasNoRowsWithoutAConnection) {
    estate_.goOffline();

    show(console_, *node_);

    EXPECT_TRUE(console_.table().empty());
    EXPECT_EQ(console_.titles().front(), u"Rule Group Name");
}

TEST_F(RuleSet, offersToMakeAGroup) {
    EXPECT_EQ(menuOf(console_, *node_), (Menu{{u"New Rule Group...", u"To create a new rule group", 374, 0}}));
}

TEST_F(RuleSet, makesAGroupAndReadsTheListAnew) {
    platform_.ui.expect<NewRuleGroupDlg>([](NewRuleGroupDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"New Rule Group");
        dialog.name.userTyped(u"Guests");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(node_->Command(374, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.change<protocol::WriteRuleGroupRequest>(2).group.name, u"Guests");
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up, Key::down, Key::f5, Key::f5}}));
}

TEST_F(RuleSet, readsTheListAnewAfterACancelToo) {
    platform_.ui.expect<NewRuleGroupDlg>([](NewRuleGroupDlg& dialog) { dialog.cancelButton().userPressed(); });

    node_->Command(374, DataObjectType::scope);

    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up, Key::down, Key::f5, Key::f5}}));
}

TEST_F(RuleSet, offersToEditAndRemoveEachGroup) {
    show(console_, *node_);

    EXPECT_EQ(menuOf(console_, *support::shownNode(console_, u"Students")),
              (Menu{{u"Edit rule group", u"To edit rule group", 372, 0},
                    {u"Remove rule group", u"To remove rule group", 373, 0}}));
}

TEST_F(RuleSet, editsAGroupAsItWasRead) {
    show(console_, *node_);
    console_.calls.clear();
    platform_.ui.expect<NewRuleGroupDlg>([](NewRuleGroupDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"Edit Rule Group");
        EXPECT_EQ(dialog.name.text(), u"Students");
        dialog.name.userTyped(u"Pupils");
        dialog.okButton().userPressed();
    });

    support::shownNode(console_, u"Students")->Command(372, DataObjectType::result);

    EXPECT_EQ(estate_.change<protocol::WriteRuleGroupRequest>(1).group.id, "g1");
    EXPECT_EQ(estate_.change<protocol::WriteRuleGroupRequest>(1).group.extra1, u"one");
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(RuleSet, removesAGroupAfterAQuestion) {
    show(console_, *node_);
    platform_.ui.expectBox(platform::Answer::ok, u"Do you want to delete the selected rule? ");

    EXPECT_EQ(support::shownNode(console_, u"Students")->Command(373, DataObjectType::result), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"58: 03 02 00 67 31"});
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, 1U);
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::up, Key::down, Key::f5}}));
}

TEST_F(RuleSet, keepsAGroupWhenTheQuestionIsCancelled) {
    show(console_, *node_);
    platform_.ui.expectBox(platform::Answer::cancel);

    EXPECT_EQ(support::shownNode(console_, u"Students")->Command(373, DataObjectType::result), Result::notDone);

    EXPECT_EQ(platform_.commands(), Strings{"ListRuleGroups"});
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(RuleSet, keepsTheRowOfAGroupThatIsReadAgain) {
    show(console_, *node_);
    EXPECT_NE(console_.resultRows.back().id, 0);

    show(console_, *node_);

    console::ResultItemFields* fields = nullptr;
    support::shownNode(console_, u"Students")->GetResultData(&fields);
    EXPECT_EQ(fields->itemID, console_.resultRows.back().id);
}

} // namespace
