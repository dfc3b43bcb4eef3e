#include "protocol/estate/Region.h"
#include "tests/protocol/RecordBytes.h"

#include <gtest/gtest.h>

namespace protocol {
namespace {

TEST(RegionRecord, isNameIdAndParent) {
    const RegionRecord region{.name = u"North", .id = 258, .parentId = -1};

    EXPECT_EQ(hexOf(region), tidy("01 19 00 00 00  0A 00 4E 00 6F 00 72 00 74 00 68 00  02 01 00 00  FF FF FF FF"));
}

TEST(RegionRecord, anEmptyOneIsTenBytesOfZero) {
    EXPECT_EQ(hexOf(RegionRecord{}), tidy("01 0F 00 00 00  00 00  00 00 00 00  00 00 00 00"));
}

TEST(RegionRecord, isReadBack) {
    const auto region = fromFields<RegionRecord>("0A 00 4E 00 6F 00 72 00 74 00 68 00 02 01 00 00 FF FF FF FF");

    EXPECT_EQ(region, (RegionRecord{.name = u"North", .id = 258, .parentId = -1}));
}

TEST(RegionRecord, aNameOutsideTheBasicPlaneGoesOutFurtherUp) {
    const RegionRecord region{.name = u"\U0001F600", .id = 1, .parentId = 0};

    EXPECT_EQ(hexOf(region), tidy("01 13 00 00 00  04 00 3E D8 00 DE  01 00 00 00  00 00 00 00"));
}

TEST(RegionRecord, aNameOutsideTheBasicPlaneComesInFurtherUp) {
    const auto region = fromFields<RegionRecord>("04 00 3D D8 00 DE 01 00 00 00 00 00 00 00");

    EXPECT_EQ(region.name, u"\U0001FA00");
}

TEST(RegionRecord, aNameOfAnOddCountLosesItsLastByte) {
    const auto region = fromFields<RegionRecord>("03 00 41 00 42 01 00 00 00 02 00 00 00");

    EXPECT_EQ(region, (RegionRecord{.name = u"A", .id = 1, .parentId = 2}));
}

TEST(RegionRecord, theLongestNameIsReadBack) {
    const wire::WideString longest(32767, u'N');
    const support::Bytes fields =
        support::hex("FE FF") + repeated(32767, "4E 00") + support::hex("01 00 00 00 02 00 00 00");

    EXPECT_EQ(fromFields<RegionRecord>(fields).name, longest);
    EXPECT_EQ(hexOf(RegionRecord{.name = longest, .id = 1, .parentId = 2}),
              support::toHex(support::hex("01 0D 00 01 00") + fields));
}

TEST(RegionRecord, whatAServerAddsBehindIsLeftUnread) {
    const auto region = fromFields<RegionRecord>("02 00 41 00 01 00 00 00 02 00 00 00 FF FF FF");

    EXPECT_EQ(region, (RegionRecord{.name = u"A", .id = 1, .parentId = 2}));
}

TEST(ListRegionsRequest, isKindParentAndTwoZeros) {
    EXPECT_EQ(hexOf(ListRegionsRequest{.kind = 1, .parentId = 77}), tidy("01 0C 00 00 00  01  4D 00 00 00  00 00"));
    EXPECT_EQ(fromFields<ListRegionsRequest>("01 4D 00 00 00 00 00"),
              (ListRegionsRequest{.kind = 1, .parentId = 77, .reserved = 0}));
}

TEST(ListRegionsReply, isACountAndTheRegionsOneAfterTheOther) {
    const ListRegionsReply reply{{{.name = u"A", .id = 1, .parentId = 0}, {.name = u"", .id = 2, .parentId = 1}}};
    const std::string fields = "02 00  02 00 41 00 01 00 00 00 00 00 00 00  00 00 02 00 00 00 01 00 00 00";

    EXPECT_EQ(hexOf(reply), tidy("01 1D 00 00 00 " + fields));
    EXPECT_EQ(fromFields<ListRegionsReply>(fields), reply);
}

TEST(ListRegionsReply, anEmptyOneIsACountOfZero) {
    EXPECT_EQ(hexOf(ListRegionsReply{}), tidy("01 07 00 00 00  00 00"));
    EXPECT_TRUE(fromFields<ListRegionsReply>("00 00").regions.empty());
}

TEST(CreateRegionRequest, isKindParentAndName) {
    const CreateRegionRequest request{.kind = 0, .parentId = 5, .name = u"North"};
    const std::string fields = "00  05 00 00 00  0A 00 4E 00 6F 00 72 00 74 00 68 00";

    EXPECT_EQ(hexOf(request), tidy("01 16 00 00 00 " + fields));
    EXPECT_EQ(fromFields<CreateRegionRequest>(fields), request);
}

TEST(CreateRegionRequest, anEmptyNameIsTwoZeros) {
    EXPECT_EQ(hexOf(CreateRegionRequest{.kind = 1, .parentId = -2, .name = {}}),
              tidy("01 0C 00 00 00  01  FE FF FF FF  00 00"));
}

TEST(CreateRegionRequest, aNameThatIsTooLongForItsCountIsWrittenWhole) {
    const CreateRegionRequest request{.kind = 0, .parentId = 0, .name = wire::WideString(32768, u'x')};

    EXPECT_EQ(hexOf(request),
              support::toHex(support::hex("01 0C 00 01 00  00  00 00 00 00  00 00") + repeated(32768, "78 00")));
}

TEST(RenameRegionRequest, isKindRegionAndName) {
    const RenameRegionRequest request{.kind = 1, .regionId = 9, .name = u"\u00DC"};

    EXPECT_EQ(hexOf(request), tidy("01 0E 00 00 00  01  09 00 00 00  02 00 DC 00"));
    EXPECT_EQ(fromFields<RenameRegionRequest>("01 09 00 00 00 02 00 DC 00 00"), request);
}

TEST(MoveRegionRequest, isKindRegionAndNewParent) {
    const MoveRegionRequest request{.kind = 0, .regionId = 9, .parentId = 3};

    EXPECT_EQ(hexOf(request), tidy("01 0E 00 00 00  00  09 00 00 00  03 00 00 00"));
    EXPECT_EQ(fromFields<MoveRegionRequest>("00 09 00 00 00 03 00 00 00"), request);
}

TEST(DeleteRegionRequest, isRegionAndThenKind) {
    const DeleteRegionRequest request{.regionId = 9, .kind = 1};

    EXPECT_EQ(hexOf(request), tidy("01 0A 00 00 00  09 00 00 00  01"));
    EXPECT_EQ(fromFields<DeleteRegionRequest>("09 00 00 00 01"), request);
}

} // namespace
} // namespace protocol
