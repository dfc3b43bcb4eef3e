#include "forms/LayoutPlan.h"
#include "tests/forms/PlanText.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace forms {
namespace {

// Its controls are made by the test.
class PlainForm final : public Form {
public:
    explicit PlainForm(platform::Platform& host) : Form(host, u"Plain") {}
};

class LayoutPlanTest : public testing::Test {
protected:
    std::string body() { return planText(planOf(form).body); }

    support::TestPlatform platform;
    PlainForm form{platform};
};

TEST_F(LayoutPlanTest, aFormWithEveryKindOfControl) {
    SampleForm sample(platform);
    EXPECT_EQ(planText(planOf(sample).body), "rows *1\n"
                                             "  [Name] | <Name>\n"
                                             "  [Password] | <Password>\n"
                                             "  [Comment] | <Comment>\n"
                                             "block\n"
                                             "  Version 1\n"
                                             "block\n"
                                             "  Where\n"
                                             "    on it\n"
                                             "      rows\n"
                                             "        By brand | <_>\n"
                                             "        <By name>\n"
                                             "        [Name] | <Name>\n"
                                             "rows\n"
                                             "  <Invisible>\n"
                                             "block *3\n"
                                             "  tabs\n"
                                             "    on it, grows\n"
                                             "      block [Rules] *3\n"
                                             "        Rules\n"
                                             "      line Apply\n"
                                             "    on it, grows\n"
                                             "      block\n"
                                             "        Times\n"
                                             "          on it\n"
                                             "            rows\n"
                                             "              [From] | <From>\n"
                                             "      block [Regions] *3\n"
                                             "        Regions\n");
    EXPECT_EQ(planText(planOf(sample).foot), "OK Cancel");
}

TEST_F(LayoutPlanTest, thePlanIsTheSameWhateverIsHiddenOrDisabledOrBehind) {
    SampleForm sample(platform);
    const std::string before = planText(planOf(sample).body);

    sample.name.setVisible(false);
    sample.where.setVisible(false);
    sample.comment.setEnabled(false);
    sample.tabs.show(1);
    sample.okButton().setVisible(false);

    EXPECT_EQ(planText(planOf(sample).body), before);
    EXPECT_EQ(planText(planOf(sample).foot), "OK Cancel");
}

TEST_F(LayoutPlanTest, aFormWithoutControlsHasOnlyItsStandardButtons) {
    EXPECT_EQ(body(), "");
    EXPECT_FALSE(planOf(form).body.grows);
    EXPECT_EQ(planOf(form).foot.size(), 2U);
}

TEST_F(LayoutPlanTest, whatStandsBesideABoxSharesItsLineAndHasItsLabelThere) {
    EditBox number{form, u"Number"};
    DropList unit{form, u""};
    Label remark{form, u"", u"pages"};
    EditBox other{form, u"Other"};
    unit.setBeside(number);
    remark.setBeside(unit);
    other.setBeside(number);
    EXPECT_EQ(body(), "rows\n"
                      "  [Number] | <Number> _ pages [Other] Other\n");
}

TEST_F(LayoutPlanTest, aRemarkAtTheEndOfARowIsLevelWithTheOthers) {
    EditBox number{form, u"Number"};
    Label remark{form, u"", u"pages"};
    remark.setBeside(number);
    EXPECT_EQ(body(), "rows\n"
                      "  [Number] | <Number> level pages\n");
}

TEST_F(LayoutPlanTest, aCheckBoxWithItsNumberStandsWhereLabelsStand) {
    EditBox name{form, u"Name"};
    CheckBox limited{form, u"Limited to"};
    CheckBox bare{form, u"Bare"};
    EditBox amount{form, u""};
    amount.setBeside(limited);
    EXPECT_EQ(body(), "rows\n"
                      "  [Name] | <Name>\n"
                      "  Limited to | <_>\n"
                      "  | <Bare>\n");
}

TEST_F(LayoutPlanTest, aRadioButtonBeginsWhereLabelsBegin) {
    RadioGroup choice;
    EditBox name{form, u"Name"};
    RadioButton one{form, choice, u"One"};
    RadioButton two{form, choice, u"Two"};
    Button pick{form, u"Pick"};
    pick.setBeside(two);
    EXPECT_EQ(body(), "rows\n"
                      "  [Name] | <Name>\n"
                      "  <One>\n"
                      "  Two | Pick\n");
}

TEST_F(LayoutPlanTest, theButtonsOfAListStandBelowItWhereverTheyComeInTheForm) {
    ListView list{form, u"Messages"};
    EditBox last{form, u"Last"};
    Button edit{form, u"Edit"};
    Button remove{form, u"Delete"};
    edit.setBeside(list);
    remove.setBeside(list);
    EXPECT_EQ(body(), "block [Messages] *3\n"
                      "  Messages\n"
                      "  below Edit Delete\n"
                      "rows\n"
                      "  [Last] | <Last>\n");
}

TEST_F(LayoutPlanTest, buttonsBehindABoxThatTheyFillShareItsLine) {
    EditBox destination{form, u"Destination", {.readOnly = true}};
    Button search{form, u"Search"};
    DropList message{form, u"Message"};
    Button edit{form, u"Edit"};
    Button remove{form, u"Delete"};
    EXPECT_EQ(body(), "rows\n"
                      "  [Destination] | <Destination> Search\n"
                      "  [Message] | <Message> Edit Delete\n");
}

TEST_F(LayoutPlanTest, buttonsBehindABoxThatAPersonFillsStandInALineOfTheirOwn) {
    EditBox name{form, u"Name"};
    Button check{form, u"Check"};
    Button clear{form, u"Clear"};
    MultiLineEdit log{form, u"Log", {.readOnly = true}};
    Button save{form, u"Save"};
    EXPECT_EQ(body(), "rows\n"
                      "  [Name] | <Name>\n"
                      "line Check Clear\n"
                      "rows *1\n"
                      "  [Log] | <Log>\n"
                      "line Save\n");
}

TEST_F(LayoutPlanTest, groupsBesideEachOtherStandSideBySideWithTheirButtonsBelow) {
    Group left{form, u"Left"};
    EditBox upper{left, u"Upper"};
    Group middle{form, u"Middle"};
    ListView list{middle, u"List"};
    Group right{form, u"Right"};
    Button swap{form, u"Swap"};
    middle.setBeside(left);
    right.setBeside(middle);
    swap.setBeside(middle);
    EXPECT_EQ(body(), "block *3\n"
                      "  Left\n"
                      "    on it\n"
                      "      rows\n"
                      "        [Upper] | <Upper>\n"
                      "  Middle\n"
                      "    on it, grows\n"
                      "      block [List] *3\n"
                      "        List\n"
                      "  Right\n"
                      "    on it\n"
                      "  below Swap\n");
}

TEST_F(LayoutPlanTest, aGroupBesideABoxAndATabControlBesideAnythingStandByThemselves) {
    EditBox name{form, u"Name"};
    Group group{form, u"Group"};
    Tabs tabs{form};
    Page page{tabs, u"Page"};
    group.setBeside(name);
    tabs.setBeside(group);
    EXPECT_EQ(body(), "rows\n"
                      "  [Name] | <Name>\n"
                      "block\n"
                      "  Group\n"
                      "    on it\n"
                      "block *3\n"
                      "  tabs\n"
                      "    on it\n");
}

TEST_F(LayoutPlanTest, whatStandsOnDifferentContainersSharesNoLine) {
    EditBox name{form, u"Name"};
    Group group{form, u"Group"};
    DropList unit{group, u"Unit"};
    unit.setBeside(name);
    EXPECT_EQ(body(), "rows\n"
                      "  [Name] | <Name>\n"
                      "block\n"
                      "  Group\n"
                      "    on it\n"
                      "      rows\n"
                      "        [Unit] | <Unit>\n");
}

TEST_F(LayoutPlanTest, controlsThatStandBesideEachOtherInACircleAreAllPlaced) {
    EditBox self{form, u"Self"};
    EditBox one{form, u"One"};
    EditBox two{form, u"Two"};
    DropList list{form, u"List"};
    Button button{form, u"Button"};
    self.setBeside(self);
    one.setBeside(two);
    two.setBeside(one);
    list.setBeside(button);
    EXPECT_EQ(body(), "rows\n"
                      "  [Self] | <Self>\n"
                      "  [Two] | <Two> [One] One\n"
                      "line Button [List] <List>\n");
}

TEST_F(LayoutPlanTest, moreRowsThanASmallScreenHoldsStandInTwoColumns) {
    std::vector<std::unique_ptr<CheckBox>> boxes;
    for (const auto* label : {u"A", u"B", u"C", u"D", u"E", u"F", u"G", u"H", u"I", u"J", u"K", u"L", u"M", u"N"}) {
        boxes.push_back(std::make_unique<CheckBox>(form, label));
    }
    EXPECT_EQ(std::get<Rows>(planOf(form).body.sections.at(0)).columns.size(), 1U);

    boxes.push_back(std::make_unique<CheckBox>(form, u"O"));

    const auto columns = std::get<Rows>(planOf(form).body.sections.at(0)).columns;
    ASSERT_EQ(columns.size(), 2U);
    EXPECT_EQ(columns[0].size(), 8U);
    EXPECT_EQ(columns[1].size(), 7U);
}

TEST_F(LayoutPlanTest, aTextThatIsOnlyShownIsARowWithALabelAndABlockWithout) {
    Label version{form, u"Version", u"7"};
    Label remark{form, u"", u"Up to date."};
    EXPECT_EQ(body(), "rows\n"
                      "  [Version] | <Version>\n"
                      "block\n"
                      "  Up to date.\n");
}

TEST_F(LayoutPlanTest, aListInTheLineOfARadioButtonGrowsAsABoxOfSeveralLinesDoes) {
    RadioGroup choice;
    RadioButton all{form, choice, u"All"};
    RadioButton some{form, choice, u"Some"};
    ListView which{form, u""};
    which.setBeside(some);
    EXPECT_EQ(body(), "rows *1\n"
                      "  <All>\n"
                      "  Some | _\n");
    EXPECT_TRUE(planOf(form).body.grows);
}

} // namespace
} // namespace forms
