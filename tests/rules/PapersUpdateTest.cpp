#include "protocol/rules/PaperCode.h"
#include "rules/PapersGroup.h"
#include "rules/PriceText.h"
#include "tests/rules/PapersFixture.h"

namespace {

class PricedPapers : public PapersFixture {};

TEST_F(PricedPapers, aSelectedRowWaitsForItsUpdate) {
    addMultiplier(3, u"0,25");
    papers_.paperList.userSelected(0);

    papers_.prices.userSelected(0);

    EXPECT_TRUE(papers_.updating());
    EXPECT_EQ(papers_.addButton.label(), u"Update");
    EXPECT_TRUE(papers_.removeButton.enabled());
    EXPECT_TRUE(papers_.unselectButton.enabled());
    EXPECT_FALSE(papers_.multiplierType.enabled());
    EXPECT_FALSE(papers_.paper.enabled());
    EXPECT_FALSE(papers_.area.enabled());
    EXPECT_FALSE(papers_.paperList.enabled());
    EXPECT_EQ(papers_.paperList.selectedText(), u"A2");
    EXPECT_EQ(papers_.fields.basePrice.box.text(), u"0,2500");
}

TEST_F(PricedPapers, tellTheirOwnerWhenAnUpdateBeginsAndEnds) {
    std::vector<bool> told;
    addMultiplier(0, u"1");
    papers_.onChange = [&] { told.push_back(papers_.updating()); };

    papers_.prices.userSelected(0);
    papers_.unselectButton.userPressed();

    EXPECT_EQ(told, (std::vector{true, false}));
}

TEST_F(PricedPapers, anUpdateKeepsTheRowAndChangesItsPrice) {
    addMultiplier(0, u"0,25");
    const auto before = papers_.rows()[0];
    papers_.prices.userSelected(0);
    papers_.fields.basePrice.box.userTyped(u"0,5");

    papers_.addButton.userPressed();

    auto expected = before;
    expected.basePrice = 0.5F;
    EXPECT_EQ(papers_.rows(), std::vector{expected});
    EXPECT_EQ(papers_.prices.rows()[0].cells[1], u"0,5000");
    EXPECT_EQ(papers_.prices.selection(), std::nullopt);
    expectAdding();
}

TEST_F(PricedPapers, onlyTheGroupOfTheRowCanBeUpdated) {
    addAbsolute();
    const auto& fields = papers_.fields;

    papers_.prices.userSelected(0);
    EXPECT_TRUE(fields.print.group.enabled());
    EXPECT_TRUE(fields.print.bwDuplex.box.enabled());
    EXPECT_FALSE(fields.copy.group.enabled());
    EXPECT_FALSE(fields.scan.group.enabled());

    papers_.prices.userSelected(1);
    EXPECT_FALSE(fields.print.group.enabled());
    EXPECT_TRUE(fields.copy.group.enabled());
    EXPECT_FALSE(fields.scan.group.enabled());

    papers_.prices.userSelected(2);
    EXPECT_FALSE(fields.print.group.enabled());
    EXPECT_FALSE(fields.copy.group.enabled());
    EXPECT_TRUE(fields.scan.group.enabled());
}

TEST_F(PricedPapers, anUpdateOfACopyRowTakesTheFourPricesOfItsGroup) {
    addAbsolute();
    papers_.prices.userSelected(1);
    papers_.fields.copy.colorDuplex.box.userTyped(u"80");

    papers_.addButton.userPressed();

    EXPECT_EQ(kinds(), (std::vector{1, 2, 3}));
    EXPECT_EQ(papers_.rows()[1].bwSimplex, 5);
    EXPECT_EQ(papers_.rows()[1].colorDuplex, 80);
    EXPECT_EQ(papers_.rows()[0].colorDuplex, 4);
}

TEST_F(PricedPapers, anUpdateOfAScanRowTakesTwoPrices) {
    addAbsolute();
    papers_.prices.userSelected(2);
    papers_.fields.scan.bw.box.userTyped(u"90");

    papers_.addButton.userPressed();

    EXPECT_EQ(papers_.rows()[2].kind, protocol::PriceKind::scan);
    EXPECT_EQ(papers_.rows()[2].bwSimplex, 90);
    EXPECT_EQ(papers_.rows()[2].colorSimplex, 10);
    EXPECT_EQ(papers_.rows()[2].bwDuplex, 0);
}

TEST_F(PricedPapers, anUpdateOfAnAreaRowSetsItsPricesForDuplexToNought) {
    papers_.setRows({{.id = "r",
                      .paperName = "ft",
                      .kind = protocol::PriceKind::areaPrint,
                      .paperCode = 261,
                      .basePrice = 9,
                      .bwSimplex = 1,
                      .bwDuplex = 2,
                      .colorSimplex = 3,
                      .colorDuplex = 4}});
    papers_.prices.userSelected(0);
    EXPECT_TRUE(papers_.area.chosen());
    EXPECT_EQ(papers_.areaList.selectedText(), u"ft \u00B2");
    EXPECT_TRUE(papers_.fields.print.group.enabled());
    EXPECT_FALSE(papers_.fields.print.bwDuplex.box.enabled());

    papers_.addButton.userPressed();

    EXPECT_EQ(papers_.rows()[0].kind, protocol::PriceKind::areaPrint);
    EXPECT_EQ(papers_.rows()[0].basePrice, 0);
    EXPECT_EQ(papers_.rows()[0].bwSimplex, 1);
    EXPECT_EQ(papers_.rows()[0].bwDuplex, 0);
    EXPECT_EQ(papers_.rows()[0].colorSimplex, 3);
    EXPECT_EQ(papers_.rows()[0].colorDuplex, 0);
}

TEST_F(PricedPapers, anUpdateOfAPaperThatIsNotOfferedKeepsThePaper) {
    papers_.setRows(
        {{.id = "r", .paperName = "A6", .kind = protocol::PriceKind::multiplier, .paperCode = 70, .basePrice = 1}});
    papers_.paperList.userSelected(0);
    papers_.prices.userSelected(0);
    EXPECT_EQ(papers_.paperList.selection(), std::nullopt);
    papers_.fields.basePrice.box.userTyped(u"2");

    papers_.addButton.userPressed();

    EXPECT_EQ(papers_.rows()[0].paperCode, 70);
    EXPECT_EQ(papers_.rows()[0].paperName, "A6");
    EXPECT_EQ(papers_.rows()[0].basePrice, 2);
}

TEST_F(PricedPapers, aRowOfKind4CanBeRemovedButNotEdited) {
    papers_.setRows(
        {{.id = "r", .paperName = "A4", .kind = protocol::PriceKind::other, .paperCode = 9, .bwSimplex = 1}});

    papers_.prices.userSelected(0);

    EXPECT_FALSE(papers_.addButton.enabled());
    EXPECT_TRUE(papers_.removeButton.enabled());
    papers_.removeButton.userPressed();
    EXPECT_TRUE(papers_.rows().empty());
    EXPECT_TRUE(papers_.addButton.enabled());
}

TEST_F(PricedPapers, removeOnTheCopyRowOfA4RemovesThePrintAndScanRowsOfA4Too) {
    addMultiplier(1, u"7");
    addAbsolute();
    papers_.prices.userSelected(2);

    papers_.removeButton.userPressed();

    ASSERT_EQ(kinds(), (std::vector{0}));
    EXPECT_EQ(papers_.rows()[0].paperName, "A0");
    EXPECT_EQ(papers_.multiplierType.selectedText(), u"Multiplier");
    EXPECT_TRUE(papers_.fields.basePrice.box.visible());
    expectAdding();
}

TEST_F(PricedPapers, unselectGoesBackToAdding) {
    papers_.setRows(
        {{.id = "r", .paperName = "ft", .kind = protocol::PriceKind::areaPrint, .paperCode = 261, .bwSimplex = 1}});
    papers_.prices.userSelected(0);

    papers_.unselectButton.userPressed();

    EXPECT_TRUE(papers_.paper.chosen());
    EXPECT_FALSE(papers_.unselectButton.enabled());
    EXPECT_EQ(papers_.prices.selection(), std::nullopt);
    EXPECT_TRUE(papers_.fields.print.group.visible());
    EXPECT_TRUE(papers_.fields.print.bwDuplex.box.reachable());
    expectAdding();
}

TEST_F(PricedPapers, aClickBesideTheRowsDoesTheSameAsUnselect) {
    addMultiplier(0, u"1");
    papers_.prices.userSelected(0);

    papers_.prices.userSelected(std::nullopt);

    EXPECT_FALSE(papers_.unselectButton.enabled());
    expectAdding();
}

TEST_F(PricedPapers, aRowWithoutANameCannotBeUpdated) {
    papers_.setRows(
        {{.id = "r", .paperName = "", .kind = protocol::PriceKind::multiplier, .paperCode = 9, .basePrice = 1}});

    papers_.prices.userSelected(0);

    expectAdding();
}

// A row whose exact price is rounded in the boxes.
protocol::PriceEntryRecord exactRow(protocol::PriceKind kind, std::uint16_t paperCode) {
    return {.id = "row",
            .paperName = "A4",
            .kind = kind,
            .paperCode = paperCode,
            .basePrice = 0.12345F,
            .bwSimplex = 0.12345F,
            .bwDuplex = 0.12345F,
            .colorSimplex = 0.12345F,
            .colorDuplex = 0.12345F};
}

TEST_F(PricedPapers, thePriceOfARowThatIsUnselectedMeansNoMoreThanItsText) {
    papers_.setRows({exactRow(protocol::PriceKind::multiplier, protocol::paperSizes[0].code)});
    papers_.prices.userSelected(0);
    const auto shown = papers_.fields.basePrice.box.text();
    EXPECT_EQ(papers_.fields.basePrice.price(), 0.12345F);

    papers_.unselectButton.userPressed();

    EXPECT_EQ(papers_.fields.basePrice.box.text(), shown);
    papers_.paperList.userSelected(1);
    papers_.addButton.userPressed();
    EXPECT_EQ(papers_.rows()[1].basePrice, rules::parsePrice(support::germanLocale(), shown));
    EXPECT_NE(papers_.rows()[1].basePrice, 0.12345F);
}

TEST_F(PricedPapers, thePricesOfARowMeanNoMoreThanTheirTextsOnceAnotherRowIsChosen) {
    papers_.setRows({exactRow(protocol::PriceKind::print, protocol::paperSizes[0].code),
                     exactRow(protocol::PriceKind::multiplier, protocol::paperSizes[1].code)});
    papers_.prices.userSelected(0);
    EXPECT_EQ(papers_.fields.print.bwSimplex.price(), 0.12345F);

    papers_.prices.userSelected(1);

    EXPECT_NE(papers_.fields.print.bwSimplex.price(), 0.12345F);
    EXPECT_EQ(papers_.fields.basePrice.price(), 0.12345F);
}

TEST_F(PricedPapers, thePriceOfAnUpdatedRowMeansNoMoreThanItsTextAfterThat) {
    papers_.setRows({exactRow(protocol::PriceKind::multiplier, protocol::paperSizes[0].code)});
    papers_.prices.userSelected(0);

    papers_.addButton.userPressed();

    EXPECT_EQ(papers_.rows()[0].basePrice, 0.12345F);
    EXPECT_NE(papers_.fields.basePrice.price(), 0.12345F);
}

} // namespace
