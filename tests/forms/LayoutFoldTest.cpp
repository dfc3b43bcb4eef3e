#include "forms/LayoutPlan.h"
#include "tests/forms/PlanText.h"
#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <string>

namespace forms {
namespace {

// Its controls are made by the test.
class BareForm final : public Form {
public:
    explicit BareForm(platform::Platform& host) : Form(host, u"Bare") {}
};

class LayoutFoldTest : public testing::Test {
protected:
    std::string body(Arrangement arrangement) { return planText(planOf(form, arrangement).body); }

    support::TestPlatform platform;
    BareForm form{platform};
};

TEST_F(LayoutFoldTest, aFormOfRowsIsDividedIntoTwoColumnsOfRows) {
    EditBox name{form, u"Name"};
    EditBox place{form, u"Place"};
    EditBox floor{form, u"Floor"};
    EditBox room{form, u"Room"};
    EXPECT_EQ(body(Arrangement::columns), "abreast\n"
                                          "  rows\n"
                                          "    [Name] | <Name>\n"
                                          "    [Place] | <Place>\n"
                                          "and\n"
                                          "  rows\n"
                                          "    [Floor] | <Floor>\n"
                                          "    [Room] | <Room>\n");
    EXPECT_EQ(body(Arrangement::sheets), body(Arrangement::columns));
    EXPECT_EQ(body(Arrangement::sheetsOfColumns), body(Arrangement::columns));
}

TEST_F(LayoutFoldTest, theFootIsTheSameInEveryArrangement) {
    EditBox name{form, u"Name"};
    for (const Arrangement arrangement : arrangements) {
        EXPECT_EQ(planText(planOf(form, arrangement).foot), "OK Cancel");
    }
}

TEST_F(LayoutFoldTest, whatCannotBeDividedStaysAsItIs) {
    ListView list{form, u"List"};
    Button edit{form, u"Edit"};
    edit.setBeside(list);
    for (const Arrangement arrangement : arrangements) {
        EXPECT_EQ(body(arrangement), body(Arrangement::stacked));
    }
}

TEST_F(LayoutFoldTest, aLineOfButtonsStaysBelowWhatItFollows) {
    EditBox name{form, u"Name"};
    Button check{form, u"Check"};
    EXPECT_EQ(body(Arrangement::columns), body(Arrangement::stacked));
}

// Two groups side by side above a large one.
class LargeForm final : public Form {
public:
    explicit LargeForm(platform::Platform& host) : Form(host, u"Large") { costs.setBeside(plan); }

    Group plan{*this, u"Plan"};
    EditBox name{plan, u"Name"};
    Group costs{*this, u"Costs"};
    EditBox price{costs, u"Price"};
    Group papers{*this, u"Papers"};
    ListView prices{papers, u"Prices"};
    EditBox base{papers, u"Base"};
    EditBox color{papers, u"Color"};
    CheckBox last{*this, u"Last"};
};

TEST_F(LayoutFoldTest, groupsSideBySideAreStackedInHalfOfADialog) {
    LargeForm large(platform);
    EXPECT_EQ(planText(planOf(large, Arrangement::columns).body), "abreast *3\n"
                                                                  "  block\n"
                                                                  "    Plan\n"
                                                                  "      on it\n"
                                                                  "        rows\n"
                                                                  "          [Name] | <Name>\n"
                                                                  "  block\n"
                                                                  "    Costs\n"
                                                                  "      on it\n"
                                                                  "        rows\n"
                                                                  "          [Price] | <Price>\n"
                                                                  "and *3\n"
                                                                  "  block *3\n"
                                                                  "    Papers\n"
                                                                  "      on it, grows\n"
                                                                  "        block [Prices] *3\n"
                                                                  "          Prices\n"
                                                                  "        rows\n"
                                                                  "          [Base] | <Base>\n"
                                                                  "          [Color] | <Color>\n"
                                                                  "  rows\n"
                                                                  "    <Last>\n");
}

TEST_F(LayoutFoldTest, aSheetHoldsAGroupWithWhatFollowsItAndIsCalledAfterIt) {
    LargeForm large(platform);
    EXPECT_EQ(planText(planOf(large, Arrangement::sheets).body), "sheet [Plan] [Costs] *3\n"
                                                                 "  block\n"
                                                                 "    Plan\n"
                                                                 "      on it\n"
                                                                 "        rows\n"
                                                                 "          [Name] | <Name>\n"
                                                                 "    Costs\n"
                                                                 "      on it\n"
                                                                 "        rows\n"
                                                                 "          [Price] | <Price>\n"
                                                                 "sheet [Papers] *3\n"
                                                                 "  block *3\n"
                                                                 "    Papers\n"
                                                                 "      on it, grows\n"
                                                                 "        block [Prices] *3\n"
                                                                 "          Prices\n"
                                                                 "        rows\n"
                                                                 "          [Base] | <Base>\n"
                                                                 "          [Color] | <Color>\n"
                                                                 "  rows\n"
                                                                 "    <Last>\n");
}

TEST_F(LayoutFoldTest, aLargeGroupOnItsSheetIsDividedToo) {
    LargeForm large(platform);
    const std::string text = planText(planOf(large, Arrangement::sheetsOfColumns).body);
    EXPECT_NE(text.find("      on it, grows\n"
                        "        abreast *3\n"
                        "          block [Prices] *3\n"
                        "            Prices\n"
                        "        and *3\n"
                        "          rows\n"
                        "            [Base] | <Base>\n"
                        "            [Color] | <Color>\n"),
              std::string::npos)
        << text;
}

TEST_F(LayoutFoldTest, whatComesBeforeTheFirstGroupStandsOnItsSheet) {
    EditBox name{form, u"Name"};
    Group left{form, u"Left"};
    Group right{form, u"Right"};
    EXPECT_EQ(body(Arrangement::sheets), "sheet [Left]\n"
                                         "  rows\n"
                                         "    [Name] | <Name>\n"
                                         "  block\n"
                                         "    Left\n"
                                         "      on it\n"
                                         "sheet [Right]\n"
                                         "  block\n"
                                         "    Right\n"
                                         "      on it\n");
}

} // namespace
} // namespace forms
