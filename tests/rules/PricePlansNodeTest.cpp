#include "rules/PricePlansNode.h"

#include "protocol/rules/PricePlan.h"
#include "rules/NewPricePlanDlg.h"
#include "tests/rules/RuleTree.h"

namespace {

using console::DataObjectType;
using console::Result;
using platform::Key;
using rules::NewPricePlanDlg;

protocol::PricePlanRecord plan(std::string id, wire::WideString name, std::uint8_t payMethod = 0) {
    protocol::PricePlanRecord record;
    record.id = std::move(id);
    record.name = std::move(name);
    record.comment = u"Comment of " + record.name;
    record.payMethod = payMethod;
    return record;
}

class PricePlans : public RuleTree {
protected:
    PricePlans() { estate_.plans = {plan("p1", u"Standard", 2), plan("p2", u"Pupils", 1)}; }

    std::shared_ptr<rules::PricePlansNode> node_ = standing<rules::PricePlansNode>();
};

TEST_F(PricePlans, areReadWhenTheyAreShownInTheOrderOfTheServer) {
    EXPECT_TRUE(platform_.commands().empty());

    show(console_, *node_);

    EXPECT_EQ(estate_.requests(1), Strings{"69: 00 00"});
    EXPECT_EQ(console_.titles(), (Names{u"Name", u"Comment", u"Pay Method"}));
    EXPECT_EQ(console_.table(), (Table{{u"Standard", u"Comment of Standard", u"External debit"},
                                       {u"Pupils", u"Comment of Pupils", u"Wallet"}}));
}

TEST_F(PricePlans, haveWideColumns) {
    show(console_, *node_);

    EXPECT_EQ(console_.columns[0].width, 200);
    EXPECT_EQ(console_.columns[1].width, 300);
    EXPECT_EQ(console_.columns[2].width, 200);
}

TEST_F(PricePlans, writeDebitInSmallLettersAndLeaveAnUnknownPayMethodOut) {
    estate_.plans = {plan("a", u"A", 0), plan("b", u"B", 2), plan("c", u"C", 3), plan("d", u"D", 4)};

    show(console_, *node_);

    const auto table = console_.table();
    EXPECT_EQ(table[0][2], u"Log");
    EXPECT_EQ(table[1][2], u"External debit");
    EXPECT_EQ(table[2][2], u"Wallet and external debit");
    EXPECT_EQ(table[3][2], u"");
}

TEST_F(PricePlans, areReadAnewWheneverTheyAreShown) {
    show(console_, *node_);
    estate_.plans = {plan("p3", u"Guests")};

    show(console_, *node_);

    EXPECT_EQ(console_.table().size(), 1U);
    EXPECT_EQ(console_.table()[0][0], u"Guests");
}

TEST_F(PricePlans, areNotReadByAChangeOfTheWindow) {
    show(console_, *node_);

    show(console_, *node_, false);
    refresh(console_, *node_, node_->scopeFields().ID);

    EXPECT_EQ(platform_.commands(), Strings{"ListPricePlans"});
    EXPECT_EQ(console_.table().size(), 2U);
}

TEST_F(PricePlans, haveNoRowsAfterAListThatFailed) {
    show(console_, *node_);
    estate_.goOffline();

    show(console_, *node_);
    refresh(console_, *node_, node_->scopeFields().ID);

    EXPECT_EQ(platform_.failures().size(), 1U);
    EXPECT_TRUE(console_.table().empty());
    EXPECT_EQ(console_.titles().front(), u"Name");
}

TEST_F(PricePlans, offerToMakeOne) {
    EXPECT_EQ(menuOf(console_, *node_), (Menu{{u"New Price Plan...", u"To create a new price plan", 375, 0}}));
}

TEST_F(PricePlans, makeOneAndReadTheListAnew) {
    platform_.ui.expect<NewPricePlanDlg>([](NewPricePlanDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"New Price Plan");
        dialog.name.userTyped(u"Guests");
        dialog.okButton().userPressed();
    });

    EXPECT_EQ(node_->Command(375, DataObjectType::scope), Result::ok);

    EXPECT_EQ(estate_.change<protocol::WritePricePlanRequest>(1).plan.name, u"Guests");
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up, Key::down, Key::f5, Key::f5}}));
    EXPECT_EQ(platform_.commands(), Strings{"WritePricePlan"}); // no rule entry is made for it
}

TEST_F(PricePlans, readTheListAnewAfterACancelToo) {
    platform_.ui.expect<NewPricePlanDlg>([](NewPricePlanDlg& dialog) { dialog.cancelButton().userPressed(); });

    node_->Command(375, DataObjectType::scope);

    EXPECT_TRUE(platform_.commands().empty());
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up, Key::down, Key::f5, Key::f5}}));
}

TEST_F(PricePlans, offerToEditAndRemoveEach) {
    show(console_, *node_);

    EXPECT_EQ(menuOf(console_, *support::shownNode(console_, u"Pupils")),
              (Menu{{u"Edit price plan", u"To edit price plan", 376, 0},
                    {u"Remove price plan", u"To remove price plan", 377, 0}}));
}

TEST_F(PricePlans, editOneAsItWasRead) {
    show(console_, *node_);
    console_.calls.clear();
    platform_.ui.expect<NewPricePlanDlg>([](NewPricePlanDlg& dialog) {
        EXPECT_EQ(dialog.title(), u"Edit Priceplan");
        EXPECT_EQ(dialog.name.text(), u"Pupils");
        dialog.name.userTyped(u"Students");
        dialog.okButton().userPressed();
    });

    support::shownNode(console_, u"Pupils")->Command(376, DataObjectType::result);

    auto expected = plan("p2", u"Pupils", 1);
    expected.name = u"Students";
    EXPECT_EQ(estate_.change<protocol::WritePricePlanRequest>(1).action, 2);
    EXPECT_EQ(estate_.change<protocol::WritePricePlanRequest>(1).plan, expected);
    EXPECT_EQ(console_.calls, Strings{"SelectScopeItem 1"});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::f5, Key::f5}}));
}

TEST_F(PricePlans, removeOneAfterAQuestion) {
    show(console_, *node_);
    platform_.ui.expectBox(platform::Answer::ok, u"Do you want to delete the selected rule? ");

    EXPECT_EQ(support::shownNode(console_, u"Pupils")->Command(377, DataObjectType::result), Result::ok);

    EXPECT_EQ(estate_.changes(1), Strings{"70: 03 02 00 70 32"});
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, 1U);
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::tab, Key::up, Key::down, Key::f5}}));
}

TEST_F(PricePlans, keepOneWhenTheQuestionIsCancelled) {
    show(console_, *node_);
    platform_.ui.expectBox(platform::Answer::cancel);

    EXPECT_EQ(support::shownNode(console_, u"Pupils")->Command(377, DataObjectType::result), Result::notDone);

    EXPECT_EQ(platform_.commands(), Strings{"ListPricePlans"});
    EXPECT_TRUE(platform_.ui.presses().empty());
}

TEST_F(PricePlans, keepTheRowOfAPlanThatIsReadAgain) {
    show(console_, *node_);
    const auto row = console_.resultRows.back().id;

    show(console_, *node_);

    console::ResultItemFields* fields = nullptr;
    support::shownNode(console_, u"Pupils")->GetResultData(&fields);
    EXPECT_NE(row, 0);
    EXPECT_EQ(fields->itemID, console_.resultRows.back().id);
}

} // namespace
