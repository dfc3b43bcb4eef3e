#include "rules/PriceTable.h"

#include "tests/support/FixedLocale.h"

#include <gtest/gtest.h>

#include <limits>
#include <stdexcept>

namespace {

using protocol::PriceEntryRecord;
using rules::PriceTable;
using Cells = std::vector<wire::WideString>;

constexpr std::uint16_t a4 = 9;
constexpr std::uint16_t a3 = 8;
constexpr std::uint16_t squareMetre = 259;

PriceEntryRecord row(int kind, std::uint16_t paperCode, float price = 1) {
    return {.id = "r",
            .paperName = "A4",
            .kind = static_cast<protocol::PriceKind>(kind),
            .paperCode = paperCode,
            .basePrice = price,
            .bwSimplex = price + 1,
            .bwDuplex = price + 2,
            .colorSimplex = price + 3,
            .colorDuplex = price + 4};
}

Cells cellsOf(int kind) {
    PriceTable table;
    table.add(row(kind, a4));
    return table.listRows(support::germanLocale()).at(0).cells;
}

std::vector<int> kindsOf(const PriceTable& table) {
    std::vector<int> kinds;
    for (const auto& each : table.rows()) {
        kinds.push_back(static_cast<int>(each.kind));
    }
    return kinds;
}

TEST(PriceTable, showsTheBasePriceOfAMultiplier) {
    const Cells expected{u"A4", u"1,0000", u"N/A", u"N/A", u"N/A", u"N/A"};

    EXPECT_EQ(cellsOf(0), expected);
    EXPECT_EQ(cellsOf(5), expected);
}

TEST(PriceTable, showsFourPricesOfPrintCopyAndWhateverElseThereIs) {
    const Cells expected{u"A4", u"N/A", u"2,0000", u"3,0000", u"4,0000", u"5,0000"};

    EXPECT_EQ(cellsOf(1), expected);
    EXPECT_EQ(cellsOf(2), expected);
    EXPECT_EQ(cellsOf(4), expected);
}

TEST(PriceTable, showsThePricesOfScanInTheSimplexColumns) {
    EXPECT_EQ(cellsOf(3), (Cells{u"A4", u"N/A", u"2,0000", u"N/A", u"4,0000", u"N/A"}));
}

TEST(PriceTable, anAreaRowOfKind6ShowsNAInBothDuplexColumns) {
    EXPECT_EQ(cellsOf(6), (Cells{u"A4", u"N/A", u"2,0000", u"N/A", u"4,0000", u"N/A"}));
}

TEST(PriceTable, showsNoPriceOfAKindThatDoesNotExist) {
    EXPECT_EQ(cellsOf(7), (Cells{u"A4", u"N/A", u"N/A", u"N/A", u"N/A", u"N/A"}));
}

TEST(PriceTable, hasSixColumnsOfWhichTheLastIsALittleWider) {
    const auto columns = PriceTable::columns();

    ASSERT_EQ(columns.size(), 6U);
    EXPECT_EQ(columns.front().title, u"Paper type");
    EXPECT_EQ(columns.front().width, 85);
    EXPECT_EQ(columns.back().title, u"Color Duplex");
    EXPECT_EQ(columns.back().width, 87);
}

TEST(PriceTable, showsTheNamesOfPapersAsTheyTravelled) {
    PriceTable table;
    auto area = row(5, squareMetre);
    area.paperName = "m \xC2\xB2";
    table.add(area);

    EXPECT_EQ(table.listRows(support::englishLocale()).at(0).cells.at(0), u"m \u00B2");
}

TEST(PriceTable, addingAMultiplierTwiceLeavesOneRowWithTheFirstPrice) {
    PriceTable table;
    table.add(row(0, a4, 0.25F));

    table.add(row(0, a4, 0.5F));

    ASSERT_EQ(table.rows().size(), 1U);
    EXPECT_EQ(table.rows()[0].basePrice, 0.25F);
}

TEST(PriceTable, addingAbsolutePricesAfterAMultiplierAddsNothing) {
    PriceTable table;
    table.add(row(0, a4));

    for (const int kind : {1, 2, 3}) {
        table.add(row(kind, a4));
    }

    EXPECT_EQ(kindsOf(table), (std::vector{0}));
}

TEST(PriceTable, aMultiplierIsNotAddedBesideAbsolutePrices) {
    PriceTable table;
    table.add(row(2, a4));

    table.add(row(0, a4));

    EXPECT_EQ(kindsOf(table), (std::vector{2}));
}

TEST(PriceTable, aPaperMayHaveOneRowOfEachAbsoluteKind) {
    PriceTable table;

    for (const int kind : {1, 2, 3, 4, 1, 4}) {
        table.add(row(kind, a4));
    }

    EXPECT_EQ(kindsOf(table), (std::vector{1, 2, 3, 4}));
}

TEST(PriceTable, anAreaHasOneRow) {
    PriceTable table;

    for (const int kind : {6, 5, 6}) {
        table.add(row(kind, squareMetre));
    }

    EXPECT_EQ(kindsOf(table), (std::vector{6}));
}

TEST(PriceTable, otherPapersAreNoDuplicates) {
    PriceTable table;

    table.add(row(0, a4));
    table.add(row(0, a3));
    table.add(row(5, squareMetre));

    EXPECT_EQ(kindsOf(table), (std::vector{0, 0, 5}));
}

TEST(PriceTable, removesAllKindsOfAPaper) {
    PriceTable table;
    for (const int kind : {1, 2, 3}) {
        table.add(row(kind, a4));
    }
    table.add(row(0, a3));

    table.removePaper(a4);

    EXPECT_EQ(kindsOf(table), (std::vector{0}));
}

TEST(PriceTable, replacesARowInItsPlaceWithoutLookingForDuplicates) {
    PriceTable table;
    table.add(row(0, a4));
    table.add(row(0, a3));

    table.replace(1, row(0, a4, 7));

    ASSERT_EQ(table.rows().size(), 2U);
    EXPECT_EQ(table.rows()[1].basePrice, 7);
    EXPECT_THROW(table.replace(2, row(0, a4)), std::out_of_range);
}

TEST(PriceTable, listsWhatNoNumberIsAsItIs) {
    PriceTable table;
    table.add(row(0, a4, std::numeric_limits<float>::infinity()));

    EXPECT_EQ(table.listRows(support::germanLocale()).at(0).cells.at(1), u"inf");
}

TEST(PriceTable, tellsRowsOfOnePaperApartByTheirHints) {
    PriceTable table;
    for (const int kind : {1, 2, 3}) {
        table.add(row(kind, a4));
    }

    const auto rows = table.listRows(support::germanLocale());

    ASSERT_EQ(rows.size(), 3U);
    EXPECT_EQ(rows[0].hint, u"Prices of printing");
    EXPECT_EQ(rows[1].hint, u"Prices of copying");
    EXPECT_EQ(rows[2].hint, u"Prices of scanning");
}

} // namespace
