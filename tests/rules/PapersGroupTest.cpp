#include "rules/PapersGroup.h"

#include "tests/rules/PapersFixture.h"

namespace {

class Papers : public PapersFixture {};

TEST_F(Papers, startWithAPaperByMultiplier) {
    EXPECT_EQ(papers_.multiplierType.selectedText(), u"Multiplier");
    EXPECT_EQ(papers_.multiplierType.items()[1].text, u"Absolute Price");
    EXPECT_TRUE(papers_.paper.chosen());
    EXPECT_TRUE(papers_.paperList.enabled());
    EXPECT_FALSE(papers_.areaList.enabled());
    EXPECT_TRUE(papers_.fields.basePrice.box.visible());
    EXPECT_FALSE(papers_.fields.print.group.visible());
    EXPECT_FALSE(papers_.fields.copy.group.visible());
    EXPECT_FALSE(papers_.fields.scan.group.visible());
    EXPECT_FALSE(papers_.unselectButton.enabled());
    expectAdding();
}

TEST_F(Papers, offerPapersAndAreasInTheirOrder) {
    ASSERT_EQ(papers_.paperList.items().size(), 8U);
    EXPECT_EQ(papers_.paperList.items().front().text, u"A4");
    EXPECT_EQ(papers_.paperList.items().back().text, u"Letter");
    ASSERT_EQ(papers_.areaList.items().size(), 5U);
    EXPECT_EQ(papers_.areaList.items().front().text, u"cm \u00B2");
    EXPECT_EQ(papers_.areaList.items().back().text, u"ft \u00B2");
}

TEST_F(Papers, absolutePricesTakeThePlaceOfTheBasePrice) {
    papers_.multiplierType.userSelected(absolute);

    EXPECT_FALSE(papers_.fields.basePrice.box.visible());
    EXPECT_TRUE(papers_.fields.print.group.visible());
    EXPECT_TRUE(papers_.fields.copy.group.visible());
    EXPECT_TRUE(papers_.fields.scan.group.visible());

    papers_.multiplierType.userSelected(multiplier);

    EXPECT_TRUE(papers_.fields.basePrice.box.visible());
    EXPECT_FALSE(papers_.fields.print.group.visible());
}

TEST_F(Papers, anAreaHasOnlyTheSimplexPricesOfPrint) {
    papers_.multiplierType.userSelected(absolute);

    papers_.area.userChose();

    const auto& fields = papers_.fields;
    EXPECT_TRUE(fields.print.bwSimplex.box.reachable());
    EXPECT_TRUE(fields.print.colorSimplex.box.reachable());
    EXPECT_FALSE(fields.print.bwDuplex.box.reachable());
    EXPECT_FALSE(fields.print.colorDuplex.box.reachable());
    EXPECT_FALSE(fields.copy.bwSimplex.box.reachable());
    EXPECT_FALSE(fields.scan.bw.box.reachable());
    EXPECT_TRUE(papers_.areaList.enabled());
    EXPECT_FALSE(papers_.paperList.enabled());

    papers_.paper.userChose();

    EXPECT_TRUE(fields.print.bwDuplex.box.reachable());
    EXPECT_TRUE(fields.copy.bwSimplex.box.reachable());
    EXPECT_TRUE(fields.scan.bw.box.reachable());
    EXPECT_FALSE(papers_.areaList.enabled());
    EXPECT_TRUE(papers_.paperList.enabled());
}

TEST_F(Papers, addAMultiplierOnAPaper) {
    addMultiplier(0, u"0,25");

    ASSERT_EQ(papers_.rows().size(), 1U);
    const auto& row = papers_.rows()[0];
    EXPECT_EQ(row.id.size(), 36U);
    EXPECT_EQ(row.kind, protocol::PriceKind::multiplier);
    EXPECT_EQ(row.paperCode, 9);
    EXPECT_EQ(row.paperName, "A4");
    EXPECT_EQ(row.basePrice, 0.25F);
    EXPECT_EQ(row.bwSimplex, 0);
    EXPECT_EQ(papers_.prices.rows()[0].cells[1], u"0,2500");
    expectAdding();
}

TEST_F(Papers, addAMultiplierOnAnArea) {
    papers_.area.userChose();
    papers_.areaList.userSelected(2);
    papers_.fields.basePrice.box.userTyped(u"2");

    papers_.addButton.userPressed();

    ASSERT_EQ(papers_.rows().size(), 1U);
    EXPECT_EQ(papers_.rows()[0].kind, protocol::PriceKind::areaMultiplier);
    EXPECT_EQ(papers_.rows()[0].paperCode, 259);
    EXPECT_EQ(papers_.rows()[0].paperName, "m \xC2\xB2");
}

TEST_F(Papers, addingAMultiplierOnA4TwiceLeavesOneRowWithTheFirstPrice) {
    addMultiplier(0, u"0,25");
    addMultiplier(0, u"0,5");

    ASSERT_EQ(papers_.rows().size(), 1U);
    EXPECT_EQ(papers_.rows()[0].basePrice, 0.25F);
}

TEST_F(Papers, anEmptyBasePriceMakesNoRow) {
    addMultiplier(0, u"");

    EXPECT_TRUE(papers_.rows().empty());
    expectAdding();
}

TEST_F(Papers, noRowIsMadeWithoutAPaper) {
    papers_.fields.basePrice.box.userTyped(u"1");
    papers_.addButton.userPressed();
    typeAbsolutePrices();
    papers_.addButton.userPressed();
    papers_.area.userChose();
    papers_.addButton.userPressed();

    EXPECT_TRUE(papers_.rows().empty());
}

TEST_F(Papers, addAbsolutePricesOfPrintCopyAndScan) {
    addAbsolute();

    ASSERT_EQ(kinds(), (std::vector{1, 2, 3}));
    const auto& rows = papers_.rows();
    EXPECT_EQ(rows[0].bwSimplex, 1);
    EXPECT_EQ(rows[0].bwDuplex, 2);
    EXPECT_EQ(rows[0].colorSimplex, 3);
    EXPECT_EQ(rows[0].colorDuplex, 4);
    EXPECT_EQ(rows[1].bwSimplex, 5);
    EXPECT_EQ(rows[1].bwDuplex, 6);
    EXPECT_EQ(rows[1].colorSimplex, 7);
    EXPECT_EQ(rows[1].colorDuplex, 8);
    EXPECT_EQ(rows[2].bwSimplex, 9);
    EXPECT_EQ(rows[2].bwDuplex, 0);
    EXPECT_EQ(rows[2].colorSimplex, 10);
    EXPECT_EQ(rows[2].colorDuplex, 0);
    EXPECT_NE(rows[0].id, rows[1].id);
}

TEST_F(Papers, addingAbsolutePricesOnA4AfterAMultiplierOnA4AddsNothingForAllThreeKinds) {
    addMultiplier(0, u"1");

    addAbsolute();

    EXPECT_EQ(kinds(), (std::vector{0}));
}

TEST_F(Papers, anEmptyScanFieldStopsTheWholeAddForPrintAndCopyAsWell) {
    typeAbsolutePrices();
    papers_.paperList.userSelected(0);
    papers_.fields.scan.color.box.userTyped(u"");

    papers_.addButton.userPressed();

    EXPECT_TRUE(papers_.rows().empty());
    EXPECT_EQ(owner_.focus(), &papers_.fields.scan.color.box);
}

TEST_F(Papers, anAreaTakesThePricesForDuplexAlongThoughItDoesNotShowThem) {
    typeAbsolutePrices();
    papers_.area.userChose();
    papers_.areaList.userSelected(0);

    papers_.addButton.userPressed();

    ASSERT_EQ(kinds(), (std::vector{6}));
    EXPECT_EQ(papers_.rows()[0].bwSimplex, 1);
    EXPECT_EQ(papers_.rows()[0].bwDuplex, 2);
    EXPECT_EQ(papers_.rows()[0].colorSimplex, 3);
    EXPECT_EQ(papers_.rows()[0].colorDuplex, 4);
    const std::vector<wire::WideString> cells{u"cm \u00B2", u"N/A", u"1,0000", u"N/A", u"3,0000", u"N/A"};
    EXPECT_EQ(papers_.prices.rows()[0].cells, cells);
}

TEST_F(Papers, anAreaWantsAllTenPricesToo) {
    papers_.multiplierType.userSelected(absolute);
    papers_.area.userChose();
    papers_.areaList.userSelected(0);
    papers_.fields.print.bwSimplex.box.userTyped(u"1");
    papers_.fields.print.colorSimplex.box.userTyped(u"2");

    papers_.addButton.userPressed();

    EXPECT_TRUE(papers_.rows().empty());
}

} // namespace
