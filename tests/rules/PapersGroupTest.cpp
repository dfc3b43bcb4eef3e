#include "rules/PapersGroup.h"

#include "forms/Form.h"
#include "protocol/rules/PaperCode.h"
#include "rules/PriceText.h"
#include "tests/support/FixedLocale.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

namespace {
using rules::PapersGroup;

constexpr std::size_t multiplier = 0;
constexpr std::size_t absolute = 1;

class FormWithPapers final : public forms::Form {
public:
    explicit FormWithPapers(platform::Platform& platform) : Form(platform, u"Owner"), papers(*this, platform.locale) {}

    PapersGroup papers;
};

class Papers : public ::testing::Test {
protected:
    Papers() { owner_.open(); }

    void addMultiplier(std::size_t paper, const wire::WideString& price) {
        papers_.multiplierType.userSelected(multiplier);
        papers_.paper.userChose();
        papers_.paperList.userSelected(paper);
        papers_.fields.basePrice.box.userTyped(price);
        papers_.addButton.userPressed();
    }

    void typeAbsolutePrices() {
        papers_.multiplierType.userSelected(absolute);
        auto& fields = papers_.fields;
        int price = 0;
        for (auto* const box :
             {&fields.print.bwSimplex, &fields.print.bwDuplex, &fields.print.colorSimplex, &fields.print.colorDuplex,
              &fields.copy.bwSimplex, &fields.copy.bwDuplex, &fields.copy.colorSimplex, &fields.copy.colorDuplex,
              &fields.scan.bw, &fields.scan.color}) {
            ASSERT_TRUE(box->box.userTyped(wire::toWide(std::to_string(++price))));
        }
    }

    // Print, copy and scan on A4 with the prices 1 to 10.
    void addAbsolute() {
        typeAbsolutePrices();
        papers_.paperList.userSelected(0);
        papers_.addButton.userPressed();
    }

    void expectAdding() const {
        EXPECT_FALSE(papers_.updating());
        EXPECT_EQ(papers_.addButton.label(), u"Add");
        EXPECT_FALSE(papers_.removeButton.enabled());
        EXPECT_TRUE(papers_.paper.enabled());
        EXPECT_TRUE(papers_.area.enabled());
        EXPECT_TRUE(papers_.multiplierType.enabled());
    }

    [[nodiscard]] std::vector<int> kinds() const {
        std::vector<int> all;
        for (const auto& row : papers_.rows()) {
            all.push_back(row.kind);
        }
        return all;
    }

    support::TestPlatform platform_{support::germanLocale()};
    FormWithPapers owner_{platform_};
    PapersGroup& papers_ = owner_.papers;
};

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
    EXPECT_EQ(row.kind, 0);
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
    EXPECT_EQ(papers_.rows()[0].kind, 5);
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

TEST_F(Papers, aSelectedRowWaitsForItsUpdate) {
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

TEST_F(Papers, tellTheirOwnerWhenAnUpdateBeginsAndEnds) {
    std::vector<bool> told;
    addMultiplier(0, u"1");
    papers_.onChange = [&] { told.push_back(papers_.updating()); };

    papers_.prices.userSelected(0);
    papers_.unselectButton.userPressed();

    EXPECT_EQ(told, (std::vector{true, false}));
}

TEST_F(Papers, anUpdateKeepsTheRowAndChangesItsPrice) {
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

TEST_F(Papers, onlyTheGroupOfTheRowCanBeUpdated) {
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

TEST_F(Papers, anUpdateOfACopyRowTakesTheFourPricesOfItsGroup) {
    addAbsolute();
    papers_.prices.userSelected(1);
    papers_.fields.copy.colorDuplex.box.userTyped(u"80");

    papers_.addButton.userPressed();

    EXPECT_EQ(kinds(), (std::vector{1, 2, 3}));
    EXPECT_EQ(papers_.rows()[1].bwSimplex, 5);
    EXPECT_EQ(papers_.rows()[1].colorDuplex, 80);
    EXPECT_EQ(papers_.rows()[0].colorDuplex, 4);
}

TEST_F(Papers, anUpdateOfAScanRowTakesTwoPrices) {
    addAbsolute();
    papers_.prices.userSelected(2);
    papers_.fields.scan.bw.box.userTyped(u"90");

    papers_.addButton.userPressed();

    EXPECT_EQ(papers_.rows()[2].kind, 3);
    EXPECT_EQ(papers_.rows()[2].bwSimplex, 90);
    EXPECT_EQ(papers_.rows()[2].colorSimplex, 10);
    EXPECT_EQ(papers_.rows()[2].bwDuplex, 0);
}

TEST_F(Papers, anUpdateOfAnAreaRowSetsItsPricesForDuplexToNought) {
    papers_.setRows({{.id = "r",
                      .paperName = "ft",
                      .kind = 6,
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

    EXPECT_EQ(papers_.rows()[0].kind, 6);
    EXPECT_EQ(papers_.rows()[0].basePrice, 0);
    EXPECT_EQ(papers_.rows()[0].bwSimplex, 1);
    EXPECT_EQ(papers_.rows()[0].bwDuplex, 0);
    EXPECT_EQ(papers_.rows()[0].colorSimplex, 3);
    EXPECT_EQ(papers_.rows()[0].colorDuplex, 0);
}

TEST_F(Papers, anUpdateOfAPaperThatIsNotOfferedKeepsThePaper) {
    papers_.setRows({{.id = "r", .paperName = "A6", .kind = 0, .paperCode = 70, .basePrice = 1}});
    papers_.paperList.userSelected(0);
    papers_.prices.userSelected(0);
    EXPECT_EQ(papers_.paperList.selection(), std::nullopt);
    papers_.fields.basePrice.box.userTyped(u"2");

    papers_.addButton.userPressed();

    EXPECT_EQ(papers_.rows()[0].paperCode, 70);
    EXPECT_EQ(papers_.rows()[0].paperName, "A6");
    EXPECT_EQ(papers_.rows()[0].basePrice, 2);
}

TEST_F(Papers, aRowOfKind4CanBeRemovedButNotEdited) {
    papers_.setRows({{.id = "r", .paperName = "A4", .kind = 4, .paperCode = 9, .bwSimplex = 1}});

    papers_.prices.userSelected(0);

    EXPECT_FALSE(papers_.addButton.enabled());
    EXPECT_TRUE(papers_.removeButton.enabled());
    papers_.removeButton.userPressed();
    EXPECT_TRUE(papers_.rows().empty());
    EXPECT_TRUE(papers_.addButton.enabled());
}

TEST_F(Papers, removeOnTheCopyRowOfA4RemovesThePrintAndScanRowsOfA4Too) {
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

TEST_F(Papers, unselectGoesBackToAdding) {
    papers_.setRows({{.id = "r", .paperName = "ft", .kind = 6, .paperCode = 261, .bwSimplex = 1}});
    papers_.prices.userSelected(0);

    papers_.unselectButton.userPressed();

    EXPECT_TRUE(papers_.paper.chosen());
    EXPECT_FALSE(papers_.unselectButton.enabled());
    EXPECT_EQ(papers_.prices.selection(), std::nullopt);
    EXPECT_TRUE(papers_.fields.print.group.visible());
    EXPECT_TRUE(papers_.fields.print.bwDuplex.box.reachable());
    expectAdding();
}

TEST_F(Papers, aClickBesideTheRowsDoesTheSameAsUnselect) {
    addMultiplier(0, u"1");
    papers_.prices.userSelected(0);

    papers_.prices.userSelected(std::nullopt);

    EXPECT_FALSE(papers_.unselectButton.enabled());
    expectAdding();
}

TEST_F(Papers, aRowWithoutANameCannotBeUpdated) {
    papers_.setRows({{.id = "r", .paperName = "", .kind = 0, .paperCode = 9, .basePrice = 1}});

    papers_.prices.userSelected(0);

    expectAdding();
}

// A row whose exact price is rounded in the boxes.
protocol::PriceEntryRecord exactRow(std::uint8_t kind, std::uint16_t paperCode) {
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

TEST_F(Papers, thePriceOfARowThatIsUnselectedMeansNoMoreThanItsText) {
    papers_.setRows({exactRow(0, protocol::paperSizes[0].code)});
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

TEST_F(Papers, thePricesOfARowMeanNoMoreThanTheirTextsOnceAnotherRowIsChosen) {
    papers_.setRows({exactRow(1, protocol::paperSizes[0].code), exactRow(0, protocol::paperSizes[1].code)});
    papers_.prices.userSelected(0);
    EXPECT_EQ(papers_.fields.print.bwSimplex.price(), 0.12345F);

    papers_.prices.userSelected(1);

    EXPECT_NE(papers_.fields.print.bwSimplex.price(), 0.12345F);
    EXPECT_EQ(papers_.fields.basePrice.price(), 0.12345F);
}

TEST_F(Papers, thePriceOfAnUpdatedRowMeansNoMoreThanItsTextAfterThat) {
    papers_.setRows({exactRow(0, protocol::paperSizes[0].code)});
    papers_.prices.userSelected(0);

    papers_.addButton.userPressed();

    EXPECT_EQ(papers_.rows()[0].basePrice, 0.12345F);
    EXPECT_NE(papers_.fields.basePrice.price(), 0.12345F);
}

} // namespace
