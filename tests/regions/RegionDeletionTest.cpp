#include "regions/RegionDeletion.h"

#include "tests/support/FakeEstate.h"

#include <gtest/gtest.h>

namespace {

using regions::readRegionContents;
using regions::RegionContents;
using support::dataMessage;
using support::frame;
using support::hex;
using Strings = std::vector<std::string>;

TEST(RegionContentsCheck, findsARegionEmptyAfterThreeLists) {
    support::FakeEstate estate;
    estate.regions = {support::region(5, 0, u"North")};
    estate.printers = {support::printer("a", 6, u"Elsewhere")};
    client::CQVXAdminClass client;

    EXPECT_EQ(readRegionContents(client, 5), RegionContents::empty);

    EXPECT_EQ(estate.requests(3),
              (Strings{"6: 00 00 05 00 00 00 00 00", "6: 00 00 05 00 00 00 03 00", "0: 00 00 00 00 00 00 00"}));
}

TEST(RegionContentsCheck, seesPrinters) {
    support::FakeEstate estate;
    estate.printers = {support::printer("a", 5, u"Here")};
    client::CQVXAdminClass client;

    EXPECT_EQ(readRegionContents(client, 5), RegionContents::something);
}

TEST(RegionContentsCheck, seesFollowPrintQueues) {
    support::FakeEstate estate;
    estate.followQueues = {support::printer("a", 5, u"Here")};
    client::CQVXAdminClass client;

    EXPECT_EQ(readRegionContents(client, 5), RegionContents::something);
}

TEST(RegionContentsCheck, seesSubRegions) {
    support::FakeEstate estate;
    estate.regions = {support::region(6, 5, u"Harbour")};
    client::CQVXAdminClass client;

    EXPECT_EQ(readRegionContents(client, 5), RegionContents::something);
}

TEST(RegionContentsCheck, doesNotTakeAPrinterListThatBreaksOffForAnEmptyRegion) {
    support::FakeEstate estate;
    estate.brokenLists = {{6, frame({dataMessage(hex("01 00"))})}};
    client::CQVXAdminClass client;

    EXPECT_EQ(readRegionContents(client, 5), RegionContents::something);
}

TEST(RegionContentsCheck, doesNotTakeMorePrintersThanACountCanTellForNone) {
    support::FakeEstate estate;
    estate.brokenLists = {{6, frame({dataMessage(hex("00 80"))})}};
    client::CQVXAdminClass client;

    EXPECT_EQ(readRegionContents(client, 5), RegionContents::something);
}

TEST(RegionContentsCheck, doesNotTakeMoreRegionsThanACountCanTellForNone) {
    support::FakeEstate estate;
    estate.brokenLists = {{0, frame({dataMessage(hex("00 80"))})}};
    client::CQVXAdminClass client;

    EXPECT_EQ(readRegionContents(client, 5), RegionContents::something);
}

TEST(RegionContentsCheck, doesNotTakeASilentServerForAnEmptyRegion) {
    support::FakeEstate estate;
    estate.goOffline();
    client::CQVXAdminClass client;

    EXPECT_EQ(readRegionContents(client, 5), RegionContents::unknown);
}

} // namespace
