#include "regions/RegionTree.h"

#include "regions/RegionsInTree.h"
#include "tests/support/Bytes.h"
#include "tests/support/FakeEstate.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using regions::RegionTree;
using support::region;
using Strings = std::vector<std::string>;
using Names = std::vector<wire::WideString>;

class RegionTreeDialog : public ::testing::Test {
protected:
    std::unique_ptr<RegionTree> opened() {
        auto dialog = std::make_unique<RegionTree>(platform_);
        dialog->open();
        return dialog;
    }

    support::TestPlatform platform_;
    support::FakeEstate estate_{platform_.platform().hooks};
};

Names pathsIn(const RegionTree& dialog) {
    Names paths;
    for (std::size_t item = 0; item < dialog.tree.items().size(); ++item) {
        paths.push_back(dialog.tree.path(item));
    }
    return paths;
}

TEST_F(RegionTreeDialog, showsEachRegionUnderItsParentFromOneList) {
    estate_.regions = {region(3, 2, u"Pier"), region(1, 0, u"North"), region(2, 1, u"Harbour"), region(4, 0, u"South")};

    const auto dialog = opened();

    EXPECT_EQ(dialog->title(), u"Select Region");
    EXPECT_EQ(estate_.requests(1), Strings{"0: 00 00 00 00 00 00 00"});
    EXPECT_EQ(pathsIn(*dialog), (Names{u"North", u"North/Harbour", u"North/Harbour/Pier", u"South"}));
    EXPECT_EQ(dialog->tree.items()[2].parameter, 3);
}

TEST_F(RegionTreeDialog, givesTheSelectedRegion) {
    estate_.regions = {region(1, 0, u"North"), region(2, 1, u"Harbour")};
    const auto dialog = opened();
    dialog->tree.userSelected(1);

    dialog->okButton().userPressed();

    EXPECT_EQ(dialog->result(), forms::idOk);
    EXPECT_EQ(dialog->selectedRegionId, 2);
    EXPECT_EQ(dialog->selectedRegionName, u"Harbour");
}

TEST_F(RegionTreeDialog, doesNotEndWithoutASelection) {
    estate_.regions = {region(1, 0, u"North")};
    const auto dialog = opened();
    platform_.ui.expectBox(platform::Answer::ok, u"Please select a region.");

    dialog->okButton().userPressed();

    EXPECT_FALSE(dialog->ended());
    EXPECT_EQ(platform_.ui.boxes().back().caption, u"Warning");
    EXPECT_EQ(platform_.ui.boxes().back().style, 0x40U);
}

TEST_F(RegionTreeDialog, showsARegionWithoutItsParentAtTheTop) {
    estate_.regions = {region(1, 0, u"North"), region(2, 77, u"Orphan"), region(3, 2, u"Child")};

    EXPECT_EQ(pathsIn(*opened()), (Names{u"North", u"Orphan", u"Orphan/Child"}));
}

TEST_F(RegionTreeDialog, showsARingOfRegionsOnceFromTheFirstOfThem) {
    estate_.regions = {region(1, 2, u"One"), region(2, 1, u"Two"), region(3, 3, u"Own parent"), region(4, 0, u"North")};

    EXPECT_EQ(pathsIn(*opened()), (Names{u"North", u"One", u"One/Two", u"Own parent"}));
}

TEST_F(RegionTreeDialog, losesNoRegionOfTheSameId) {
    estate_.regions = {region(2, 1, u"Below"), region(1, 0, u"Twin"), region(1, 0, u"Other twin")};

    EXPECT_EQ(pathsIn(*opened()), (Names{u"Twin", u"Twin/Below", u"Other twin"}));
}

TEST_F(RegionTreeDialog, showsARegionWithTheIdOfTheTopOnce) {
    estate_.regions = {region(0, 0, u"Zero"), region(1, 0, u"North")};

    EXPECT_EQ(pathsIn(*opened()), (Names{u"Zero", u"North"}));
}

TEST(RegionsInTreeOrder, takeAChainOfAnyLength) {
    constexpr std::int32_t length = 100'000;
    std::vector<protocol::RegionRecord> chain;
    for (std::int32_t id = length; id >= 1; --id) {
        chain.push_back(region(id, id - 1, u"R"));
    }

    const auto ordered = regions::inTreeOrder(chain);

    ASSERT_EQ(ordered.size(), static_cast<std::size_t>(length));
    EXPECT_EQ(ordered.back().record.id, length);
    EXPECT_EQ(ordered.back().parent, std::optional<std::size_t>(length - 2));
}

TEST_F(RegionTreeDialog, cannotBeConfirmedWhenTheListBreaksOff) {
    estate_.brokenLists[0] = support::frame({support::dataMessage(support::hex("02 00 01 00 41 00"))});

    EXPECT_FALSE(opened()->okButton().enabled());
}

TEST_F(RegionTreeDialog, cannotBeConfirmedWhenTheRegionsCouldNotBeRead) {
    estate_.goOffline();

    const auto dialog = opened();

    EXPECT_FALSE(dialog->okButton().enabled());
    EXPECT_EQ(platform_.failures().size(), 1U);
}

} // namespace
