#include "server/estate/RegionService.h"

#include "server/estate/RegionTable.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using test::TestEstate;

std::vector<std::u16string> regionNames(TestEstate& place, std::uint8_t kind, std::int32_t parentId = 0) {
    std::vector<std::u16string> names;
    auto rows = place.regions().list(kind, parentId);
    while (rows.next()) {
        names.push_back(rows.wide(0));
    }
    return names;
}

TEST(RegionService, aRegionIsMadeAtTheTopAndBelowAnother) {
    TestEstate place;
    EXPECT_TRUE(isDone(place.regionService().create({.kind = 0, .parentId = 0, .name = u"North"})));
    EXPECT_TRUE(isDone(place.regionService().create({.kind = 0, .parentId = 1, .name = u"Harbour"})));
    EXPECT_EQ(place.regions().find(0, 2)->parentId, 1);
}

TEST(RegionService, anEmptyNameIsRefused) {
    TestEstate place;
    EXPECT_EQ(place.regionService().create({.kind = 0, .parentId = 0, .name = u""}).text, u"A region needs a name.");
    EXPECT_FALSE(isDone(place.regionService().create({.kind = 0, .parentId = 0, .name = std::u16string(1, u'\0')})));
    EXPECT_TRUE(place.regions().isEmpty());
}

TEST(RegionService, aNameThatNoConsoleCouldReceiveIsRefused) {
    TestEstate place;
    EXPECT_FALSE(isDone(place.regionService().create({.kind = 0, .parentId = 0, .name = std::u16string(32767, u'x')})));
    EXPECT_TRUE(isDone(place.regionService().create({.kind = 0, .parentId = 0, .name = std::u16string(32760, u'x')})));
}

TEST(RegionService, aNameThatIsTakenUnderTheSameParentIsRefusedInAnyCase) {
    TestEstate place;
    place.addRegion(u"North");
    EXPECT_EQ(place.regionService().create({.kind = 0, .parentId = 0, .name = u"NORTH"}).text,
              u"There is a region named \"NORTH\" here already.");
    EXPECT_TRUE(isDone(place.regionService().create({.kind = 0, .parentId = 1, .name = u"North"})));
    EXPECT_TRUE(isDone(place.regionService().create({.kind = 1, .parentId = 0, .name = u"North"})));
}

TEST(RegionService, aNameThatConsolesSortAsAnotherOneIsTheSame) {
    TestEstate place;
    place.addRegion(u"\u0178"); // a capital whose small letter stands in another block
    EXPECT_EQ(place.regionService().create({.kind = 0, .parentId = 0, .name = u"\u00FF"}).text,
              u"There is a region named \"\u00FF\" here already.");
}

TEST(RegionService, aParentThatDoesNotExistIsRefused) {
    TestEstate place;
    EXPECT_FALSE(isDone(place.regionService().create({.kind = 0, .parentId = 77, .name = u"North"})));
    EXPECT_FALSE(isDone(place.regionService().create({.kind = 0, .parentId = -1, .name = u"North"})));
}

TEST(RegionService, aKindThatDoesNotExistIsRefused) {
    TestEstate place;
    EXPECT_FALSE(isDone(place.regionService().create({.kind = 2, .parentId = 0, .name = u"North"})));
}

TEST(RegionService, theTwoTreesAreApart) {
    TestEstate place;
    const auto region = place.addRegion(u"North", 0, 0);
    EXPECT_FALSE(isDone(place.regionService().create({.kind = 1, .parentId = region, .name = u"Home"})));
    EXPECT_FALSE(isDone(place.regionService().rename({.kind = 1, .regionId = region, .name = u"Home"})));
    EXPECT_FALSE(isDone(place.regionService().remove({.regionId = region, .kind = 1})));
    EXPECT_EQ(regionNames(place, 0), std::vector<std::u16string>{u"North"});
    EXPECT_TRUE(regionNames(place, 1).empty());
}

TEST(RegionService, aRegionIsRenamedAlsoToOtherCapitals) {
    TestEstate place;
    place.addRegion(u"North");
    place.addRegion(u"South");
    EXPECT_TRUE(isDone(place.regionService().rename({.kind = 0, .regionId = 1, .name = u"NORTH"})));
    EXPECT_FALSE(isDone(place.regionService().rename({.kind = 0, .regionId = 1, .name = u"south"})));
    EXPECT_FALSE(isDone(place.regionService().rename({.kind = 0, .regionId = 1, .name = u""})));
    EXPECT_FALSE(isDone(place.regionService().rename({.kind = 0, .regionId = 9, .name = u"East"})));
    EXPECT_EQ(regionNames(place, 0), (std::vector<std::u16string>{u"NORTH", u"South"}));
}

TEST(RegionService, aRegionIsNotMovedBelowItselfOrBelowWhatItHolds) {
    TestEstate place;
    const auto top = place.addRegion(u"Top");
    const auto middle = place.addRegion(u"Middle", top);
    const auto low = place.addRegion(u"Low", middle);
    EXPECT_EQ(place.regionService().move({.kind = 0, .regionId = top, .parentId = low}).text,
              u"A region cannot be moved below itself.");
    EXPECT_FALSE(isDone(place.regionService().move({.kind = 0, .regionId = top, .parentId = top})));
    EXPECT_TRUE(isDone(place.regionService().move({.kind = 0, .regionId = low, .parentId = top})));
    EXPECT_TRUE(isDone(place.regionService().move({.kind = 0, .regionId = middle, .parentId = 0})));
    EXPECT_EQ(place.regions().find(0, middle)->parentId, 0);
}

TEST(RegionService, aMoveToWhereTheNameIsTakenIsRefused) {
    TestEstate place;
    const auto north = place.addRegion(u"North");
    const auto office = place.addRegion(u"Office", north);
    place.addRegion(u"OFFICE");
    EXPECT_FALSE(isDone(place.regionService().move({.kind = 0, .regionId = office, .parentId = 0})));
    EXPECT_FALSE(isDone(place.regionService().move({.kind = 0, .regionId = office, .parentId = 99})));
    EXPECT_EQ(place.regions().find(0, office)->parentId, north);
}

TEST(RegionService, aRegionThatHoldsSomethingIsNotDeleted) {
    TestEstate place;
    const auto withRegion = place.addRegion(u"With a region");
    place.addRegion(u"Below", withRegion);
    const auto withPrinter = place.addRegion(u"With a printer");
    place.addPrinter(u"P", withPrinter);
    const auto withFollowQueue = place.addRegion(u"With a follow-print queue");
    place.add(3, u"F", withFollowQueue);
    const auto withLocalPrinter = place.addRegion(u"With a local printer", 0, 1);
    place.add(6, u"L", withLocalPrinter);
    EXPECT_FALSE(isDone(place.regionService().remove({.regionId = withRegion, .kind = 0})));
    EXPECT_FALSE(isDone(place.regionService().remove({.regionId = withPrinter, .kind = 0})));
    EXPECT_FALSE(isDone(place.regionService().remove({.regionId = withFollowQueue, .kind = 0})));
    EXPECT_FALSE(isDone(place.regionService().remove({.regionId = withLocalPrinter, .kind = 1})));
    EXPECT_EQ(regionNames(place, 0).size() + regionNames(place, 1).size(), 5U);
}

TEST(RegionService, anEmptyRegionIsDeletedAndItsIdIsNotUsedAgain) {
    TestEstate place;
    const auto first = place.addRegion(u"North");
    EXPECT_TRUE(isDone(place.regionService().remove({.regionId = first, .kind = 0})));
    EXPECT_FALSE(isDone(place.regionService().remove({.regionId = first, .kind = 0})));
    EXPECT_GT(place.addRegion(u"North"), first);
}

TEST(RegionTable, aListIsInTheOrderOfNamesWhateverTheOrderOfMaking) {
    TestEstate place;
    const auto top = place.addRegion(u"beta");
    place.addRegion(u"Gamma");
    place.addRegion(u"Alpha");
    place.addRegion(u"delta", top);
    EXPECT_EQ(regionNames(place, 0), (std::vector<std::u16string>{u"Alpha", u"beta", u"delta", u"Gamma"}));
    EXPECT_EQ(regionNames(place, 0, top), std::vector<std::u16string>{u"delta"});
}

TEST(RegionTable, namesKeepTheUnitsThatCame) {
    TestEstate place;
    const std::u16string odd = {u'"', u'/', u'\n', 0xD83D, 0xDE00, 0xDC00, u'\'', 0x0000, u'x'};
    const auto region = place.addRegion(odd);
    EXPECT_EQ(place.regions().find(0, region)->name, odd);
}

} // namespace
} // namespace server
