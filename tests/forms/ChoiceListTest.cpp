#include "forms/ChoiceList.h"

#include "tests/forms/SampleForm.h"
#include "tests/support/TestPlatform.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <utility>

namespace forms {
namespace {

using testing::ElementsAre;
using testing::Field;
using Offers = std::array<std::pair<int, std::u16string_view>, 3>;

constexpr Offers papers{{{9, u"A4"}, {8, u"A3"}, {5, u"Legal"}}};

class ChoiceListTest : public testing::Test {
protected:
    support::TestPlatform platform;
    SampleForm form{platform};
    ChoiceList<std::uint8_t> status{form, u"Status", {{1, u"Idle"}, {3, u"Printing"}, {2, u"Paused"}}};
    ChoiceList<int> paper{form, u"Paper"};
};

TEST_F(ChoiceListTest, beginsWithItsFirstChoice) {
    EXPECT_EQ(status.items().size(), 3U);
    EXPECT_EQ(status.selectedText(), u"Idle");
    EXPECT_EQ(status.value(), 1);
}

TEST_F(ChoiceListTest, hasTheValueOfTheRowThatAPersonSelects) {
    status.userSelected(2);

    EXPECT_EQ(status.selectedText(), u"Paused");
    EXPECT_EQ(status.value(), 2);
}

TEST_F(ChoiceListTest, selectsTheRowOfAValue) {
    EXPECT_TRUE(status.selectValue(3));

    EXPECT_EQ(status.selectedText(), u"Printing");
}

TEST_F(ChoiceListTest, staysWhereItIsForAValueThatItDoesNotOffer) {
    status.select(1);

    EXPECT_FALSE(status.selectValue(7));

    EXPECT_EQ(status.value(), 3);
}

TEST_F(ChoiceListTest, hasNoValueWithoutASelection) {
    status.select(std::nullopt);

    EXPECT_EQ(status.value(), std::nullopt);
}

TEST_F(ChoiceListTest, offersTheRowsOfATableAndSelectsNoneOfThem) {
    paper.offer(papers);

    EXPECT_THAT(paper.items(), ElementsAre(Field(&DropListItem::text, u"A4"), Field(&DropListItem::text, u"A3"),
                                           Field(&DropListItem::text, u"Legal")));
    EXPECT_EQ(paper.value(), std::nullopt);
    EXPECT_TRUE(paper.selectValue(5));
    EXPECT_EQ(paper.selection(), 2U);
}

TEST_F(ChoiceListTest, keepsValuesWithTheirRowsInASortedList) {
    ChoiceList<int> sorted{form, u"Paper", {.sorted = true}};
    sorted.offer(papers);

    sorted.select(0);

    EXPECT_EQ(sorted.selectedText(), u"A3");
    EXPECT_EQ(sorted.value(), 8);
}

TEST_F(ChoiceListTest, canStandForYesAndNo) {
    ChoiceList<bool> kind{form, u"Kind", {{false, u"Multiplier"}, {true, u"Absolute"}}};

    EXPECT_TRUE(kind.selectValue(true));

    EXPECT_EQ(kind.value(), true);
    EXPECT_EQ(kind.selection(), 1U);
}

} // namespace
} // namespace forms
