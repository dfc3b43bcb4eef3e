#include "regions/RegionsBelow.h"

#include "tests/support/FakeEstate.h"

#include <gtest/gtest.h>

namespace {

using protocol::RegionKind;
using Strings = std::vector<std::string>;

TEST(RegionsBelow, areThoseOfTheParentLastOfTheListFirst) {
    support::FakeEstate estate;
    estate.regions = {support::region(1, 0, u"North"), support::region(2, 1, u"Harbour"),
                      support::region(3, 0, u"South")};
    client::CQVXAdminClass client;
    std::vector<protocol::RegionRecord> below;

    ASSERT_TRUE(regions::readRegionsBelow(client, RegionKind::printersAndQueues, 0, below));

    ASSERT_EQ(below.size(), 2U);
    EXPECT_EQ(below[0], support::region(3, 0, u"South"));
    EXPECT_EQ(below[1], support::region(1, 0, u"North"));
}

TEST(RegionsBelow, areAskedForAsTheWholeTree) {
    support::FakeEstate estate;
    client::CQVXAdminClass client;
    std::vector<protocol::RegionRecord> below;

    static_cast<void>(regions::readRegionsBelow(client, RegionKind::localPrinters, 5, below));

    EXPECT_EQ(estate.requests(1), Strings{"0: 01 00 00 00 00 00 00"});
}

TEST(RegionsBelow, replaceWhatStoodThere) {
    support::FakeEstate estate;
    client::CQVXAdminClass client;
    std::vector<protocol::RegionRecord> below{support::region(9, 0, u"Old")};

    ASSERT_TRUE(regions::readRegionsBelow(client, RegionKind::printersAndQueues, 0, below));

    EXPECT_TRUE(below.empty());
}

TEST(RegionsBelow, areLeftAloneWithoutAConnection) {
    support::FakeEstate estate;
    estate.goOffline();
    client::CQVXAdminClass client;
    std::vector<protocol::RegionRecord> below{support::region(9, 0, u"Old")};

    EXPECT_THROW(static_cast<void>(regions::readRegionsBelow(client, RegionKind::printersAndQueues, 0, below)),
                 std::runtime_error);

    EXPECT_EQ(below.size(), 1U);
}

TEST(RegionKeys, areNeverThoseOfAPrinter) {
    EXPECT_EQ(regions::regionKey(12), "region 12");
    EXPECT_EQ(regions::regionKey(-3), "region -3");
}

} // namespace
