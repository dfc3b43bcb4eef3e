#include "rules/NewPricePlanDlg.h"

#include "protocol/rules/PricePlan.h"
#include "protocol/rules/RuleEntry.h"
#include "tests/support/FixedLocale.h"
#include "tests/support/RuleEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {

using platform::Answer;
using protocol::PricePlanRecord;
using protocol::WritePricePlanRequest;
using rules::NewPricePlanDlg;
using Strings = std::vector<std::string>;

PricePlanRecord standardPlan() {
    return {.id = "plan-1",
            .payMethod = 2,
            .name = u"Standard",
            .comment = u"For all",
            .defaultPrice = 0.5F,
            .colorMultiplier = 1.5F,
            .duplexMultiplier = 0.75F,
            .copyMultiplier = 2,
            .scanMultiplier = 0,
            .vat = 1900};
}

class NewPricePlanDialog : public ::testing::Test {
protected:
    NewPricePlanDialog() { estate_.plans = {standardPlan()}; }

    WritePricePlanRequest written(std::size_t changes = 1) { return estate_.change<WritePricePlanRequest>(changes); }

    // What OK makes of a text for the VAT.
    std::uint32_t vatOf(const wire::WideString& text) {
        NewPricePlanDlg dialog(platform_);
        dialog.open();
        dialog.name.userTyped(u"Plan");
        dialog.vat.userTyped(text);
        dialog.okButton().userPressed();
        return dialog.record().vat;
    }

    support::TestPlatform platform_{support::germanLocale()};
    support::RuleEstate estate_{platform_.platform().hooks};
};

TEST_F(NewPricePlanDialog, startsWithTheDefaultsOfANewPlan) {
    NewPricePlanDlg dialog(platform_);

    dialog.open();

    EXPECT_EQ(dialog.title(), u"New Price Plan");
    EXPECT_EQ(dialog.name.text(), u"");
    EXPECT_EQ(dialog.comment.text(), u"");
    EXPECT_EQ(dialog.payMethod.selectedText(), u"Log");
    EXPECT_EQ(dialog.defaultPrice.box.text(), u"1,0000");
    EXPECT_EQ(dialog.colorMultiplier.box.text(), u"1,0000");
    EXPECT_EQ(dialog.duplexMultiplier.box.text(), u"1,0000");
    EXPECT_EQ(dialog.copyMultiplier.box.text(), u"1,0000");
    EXPECT_EQ(dialog.scanMultiplier.box.text(), u"0,0000");
    EXPECT_EQ(dialog.vat.text(), u"25,00");
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(NewPricePlanDialog, writesNumbersInTheWayOfTheUser) {
    support::TestPlatform english(support::englishLocale());
    NewPricePlanDlg dialog(english);

    dialog.open();

    EXPECT_EQ(dialog.defaultPrice.box.text(), u"1.0000");
    EXPECT_EQ(dialog.vat.text(), u"25.00");
}

TEST_F(NewPricePlanDialog, limitsNameCommentAndScanMultiplier) {
    const NewPricePlanDlg dialog(platform_);

    EXPECT_EQ(dialog.name.options().limit, 64U);
    EXPECT_EQ(dialog.comment.options().limit, 128U);
    EXPECT_EQ(dialog.scanMultiplier.box.options().limit, 64U);
}

TEST_F(NewPricePlanDialog, writesDebitInCapitals) {
    NewPricePlanDlg dialog(platform_);

    dialog.open();

    ASSERT_EQ(dialog.payMethod.items().size(), 4U);
    EXPECT_EQ(dialog.payMethod.items()[2].text, u"External Debit");
    EXPECT_EQ(dialog.payMethod.items()[3].text, u"Wallet and external debit");
}

TEST_F(NewPricePlanDialog, addsANewPlanWithItsPrices) {
    NewPricePlanDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Standard");
    dialog.comment.userTyped(u"For all");
    dialog.payMethod.userSelected(1);
    dialog.vat.userTyped(u"7,5");
    dialog.papers.paperList.userSelected(0);
    dialog.papers.fields.basePrice.box.userTyped(u"0.20");
    dialog.papers.addButton.userPressed();

    dialog.okButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idOk);
    const auto request = written();
    EXPECT_EQ(request.action, 1);
    EXPECT_EQ(request.plan.id.size(), 36U);
    EXPECT_EQ(request.plan.name, u"Standard");
    EXPECT_EQ(request.plan.comment, u"For all");
    EXPECT_EQ(request.plan.payMethod, 1);
    EXPECT_EQ(request.plan.defaultPrice, 1);
    EXPECT_EQ(request.plan.scanMultiplier, 0);
    EXPECT_EQ(request.plan.vat, 750U);
    ASSERT_EQ(request.entries.size(), 1U);
    EXPECT_EQ(request.entries[0].kind, protocol::PriceKind::multiplier);
    EXPECT_EQ(request.entries[0].paperCode, 9);
    EXPECT_EQ(request.entries[0].paperName, "A4");
    EXPECT_EQ(request.entries[0].basePrice, 0.2F);
    EXPECT_EQ(dialog.record(), request.plan);
}

TEST_F(NewPricePlanDialog, aPlanWithoutRowsCanBeSaved) {
    NewPricePlanDlg dialog(platform_);
    dialog.open();
    dialog.name.userTyped(u"Bare");

    dialog.okButton().userPressed();

    EXPECT_TRUE(written().entries.empty());
}

TEST_F(NewPricePlanDialog, wantsAName) {
    NewPricePlanDlg dialog(platform_);
    dialog.open();
    platform_.ui.expectBox(Answer::ok, u"Name field should not be blank!");

    dialog.okButton().userPressed();

    EXPECT_FALSE(dialog.ended());
    EXPECT_EQ(dialog.focus(), &dialog.name);
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"A required field is empty!");
    EXPECT_EQ(platform_.ui.boxes().back().style, 0x30U);
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(NewPricePlanDialog, aVatOfTwentyFiveIsStoredAs2500AndOfSevenAndAHalfAs750) {
    EXPECT_EQ(vatOf(u"25"), 2500U);
    EXPECT_EQ(vatOf(u"7,5"), 750U);
    EXPECT_EQ(vatOf(u"7.5"), 750U);
}

TEST_F(NewPricePlanDialog, aVatIsCutAndNotRounded) {
    EXPECT_EQ(vatOf(u"19,999"), 1999U);
    EXPECT_EQ(vatOf(u"0,009"), 0U);
}

TEST_F(NewPricePlanDialog, aVatOfTwoDecimalsIsStoredAsItWasTyped) {
    EXPECT_EQ(vatOf(u"7.70"), 770U);
    EXPECT_EQ(vatOf(u"8,41"), 841U);
    EXPECT_EQ(vatOf(u"19,99"), 1999U);
}

TEST_F(NewPricePlanDialog, anEmptyVatKeepsTheOldValue) {
    EXPECT_EQ(vatOf(u""), 2500U);
}

TEST_F(NewPricePlanDialog, aVatThatIsNoNumberIsNought) {
    EXPECT_EQ(vatOf(u"none"), 0U);
    EXPECT_EQ(vatOf(u"1e38"), 0U);
}

TEST_F(NewPricePlanDialog, aNegativeVatWrapsAround) {
    EXPECT_EQ(vatOf(u"-1"), 4294967196U);
}

TEST_F(NewPricePlanDialog, showsThePlanToEdit) {
    estate_.prices["plan-1"] = {
        {.id = "r1", .paperName = "A4", .kind = protocol::PriceKind::multiplier, .paperCode = 9, .basePrice = 0.2F}};
    NewPricePlanDlg dialog(platform_, standardPlan());

    dialog.open();

    EXPECT_EQ(dialog.title(), u"Edit Priceplan");
    EXPECT_EQ(dialog.name.text(), u"Standard");
    EXPECT_EQ(dialog.comment.text(), u"For all");
    EXPECT_EQ(dialog.payMethod.selectedText(), u"External Debit");
    EXPECT_EQ(dialog.defaultPrice.box.text(), u"0,5000");
    EXPECT_EQ(dialog.colorMultiplier.box.text(), u"1,5000");
    EXPECT_EQ(dialog.duplexMultiplier.box.text(), u"0,7500");
    EXPECT_EQ(dialog.copyMultiplier.box.text(), u"2,0000");
    EXPECT_EQ(dialog.scanMultiplier.box.text(), u"0,0000");
    EXPECT_EQ(dialog.vat.text(), u"19,00");
    ASSERT_EQ(dialog.papers.prices.rows().size(), 1U);
    EXPECT_EQ(dialog.papers.prices.rows()[0].cells[1], u"0,2000");
    EXPECT_EQ(estate_.requests(1), Strings{"71: 06 00 70 6C 61 6E 2D 31"});
}

TEST_F(NewPricePlanDialog, updatesAnEditedPlanWithAllOfItsRows) {
    estate_.prices["plan-1"] = {
        {.id = "r1", .paperName = "A4", .kind = protocol::PriceKind::multiplier, .paperCode = 9, .basePrice = 0.2F},
        {.id = "r2",
         .paperName = "Odd",
         .kind = protocol::PriceKind::other,
         .paperCode = 77,
         .bwSimplex = 1,
         .colorDuplex = 2}};
    NewPricePlanDlg dialog(platform_, standardPlan());
    dialog.open();
    dialog.comment.userTyped(u"");
    dialog.defaultPrice.box.userTyped(u"0,25");

    dialog.okButton().userPressed();

    auto expected = standardPlan();
    expected.comment.clear();
    expected.defaultPrice = 0.25F;
    EXPECT_EQ(written().action, 2);
    EXPECT_EQ(written().plan, expected);
    EXPECT_EQ(written().entries, estate_.prices["plan-1"]);
}

TEST_F(NewPricePlanDialog, emptyFieldsKeepTheOldValues) {
    NewPricePlanDlg dialog(platform_, standardPlan());
    dialog.open();
    for (auto* const box : {&dialog.defaultPrice, &dialog.colorMultiplier, &dialog.duplexMultiplier,
                            &dialog.copyMultiplier, &dialog.scanMultiplier}) {
        box->box.userTyped(u"");
    }
    dialog.vat.userTyped(u"");

    dialog.okButton().userPressed();

    EXPECT_EQ(written().plan, standardPlan());
}

TEST_F(NewPricePlanDialog, numbersThatAreLeftAloneStayWhateverIsShownOfThem) {
    auto plan = standardPlan();
    plan.defaultPrice = 1234567.5F;
    plan.colorMultiplier = 0.123456F;
    plan.vat = 2999;
    estate_.prices["plan-1"] = {
        {.id = "r1", .paperName = "A4", .kind = protocol::PriceKind::multiplier, .paperCode = 9, .basePrice = 4321.5F}};
    NewPricePlanDlg dialog(platform_, plan);
    dialog.open();
    EXPECT_EQ(dialog.defaultPrice.box.text(), u"1.234.567,5000");
    EXPECT_EQ(dialog.vat.text(), u"29,99");
    dialog.papers.prices.userSelected(0);
    dialog.papers.addButton.userPressed();

    dialog.okButton().userPressed();

    EXPECT_EQ(written().plan, plan);
    EXPECT_EQ(written().entries, estate_.prices["plan-1"]);
}

TEST_F(NewPricePlanDialog, aPayMethodThatDoesNotExistBecomesLog) {
    auto plan = standardPlan();
    plan.payMethod = 9;
    NewPricePlanDlg dialog(platform_, plan);
    dialog.open();
    EXPECT_EQ(dialog.payMethod.selection(), std::nullopt);

    dialog.okButton().userPressed();

    EXPECT_EQ(written().plan.payMethod, 0);
}

TEST_F(NewPricePlanDialog, cannotBeConfirmedWhenThePricesOfThePlanAreNotKnown) {
    estate_.goOffline();
    NewPricePlanDlg dialog(platform_, standardPlan());

    dialog.open();
    dialog.papers.unselectButton.userPressed();

    EXPECT_EQ(dialog.name.text(), u"Standard");
    EXPECT_FALSE(dialog.okButton().enabled());
    EXPECT_EQ(platform_.failures().size(), 1U);
}

TEST_F(NewPricePlanDialog, sendsNothingOnCancel) {
    NewPricePlanDlg dialog(platform_);
    dialog.open();

    dialog.cancelButton().userPressed();

    EXPECT_EQ(dialog.result(), forms::idCancel);
    EXPECT_TRUE(platform_.commands().empty());
}

TEST_F(NewPricePlanDialog, marksWhatIsNotReadAsItIsTyped) {
    NewPricePlanDlg dialog(platform_);
    dialog.open();
    EXPECT_EQ(dialog.vat.problem(), u"");

    dialog.vat.userTyped(u"19.999");
    dialog.defaultPrice.box.userTyped(u"1.5x");

    EXPECT_NE(dialog.vat.problem(), u"");
    EXPECT_NE(dialog.defaultPrice.box.problem(), u"");
    EXPECT_EQ(dialog.defaultPrice.price(), 1.5F);

    dialog.vat.userTyped(u"19.99");
    dialog.defaultPrice.box.userTyped(u"1.5");

    EXPECT_EQ(dialog.vat.problem(), u"");
    EXPECT_EQ(dialog.defaultPrice.box.problem(), u"");
}

} // namespace
