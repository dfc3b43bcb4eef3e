#include "protocol/estate/Region.h"
#include "tests/client/ClientTest.h"

namespace client {
namespace {

using protocol::RegionKind;
using protocol::RegionRecord;

class Regions : public ClientTest {};

const Bytes north = hex("0A 00 4E 00 6F 00 72 00 74 00 68 00  01 00 00 00  00 00 00 00");
const Bytes south = hex("0A 00 53 00 6F 00 75 00 74 00 68 00  02 00 00 00  01 00 00 00");

TEST_F(Regions, areAskedForByKindAndParent) {
    answer({frame({dataMessage(hex("00 00"))})});

    EXPECT_TRUE(CQVXAdminClass(settings).listRegions(RegionKind::localPrinters, 7));

    EXPECT_EQ(received(), request(0, "01 07 00 00 00 00 00"));
}

TEST_F(Regions, comeAsOneMessage) {
    answer({frame({dataMessage(hex("02 00") + north + south)})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listRegions(RegionKind::printersAndQueues));

    EXPECT_EQ(client.regions(), (std::vector<RegionRecord>{{u"North", 1, 0}, {u"South", 2, 1}}));
    EXPECT_EQ(observer.ended.at(0).records, 2U);
}

TEST_F(Regions, comeInFramesOfTheirOwnBehindACountAlone) {
    answer({countedList({north, south})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listRegions(RegionKind::printersAndQueues));

    EXPECT_EQ(client.regions(), (std::vector<RegionRecord>{{u"North", 1, 0}, {u"South", 2, 1}}));
}

TEST_F(Regions, areHandedOutLastFirst) {
    answer({frame({dataMessage(hex("02 00") + north + south)})});
    CQVXAdminClass client(settings);
    client.listRegions(RegionKind::printersAndQueues);
    std::int32_t id = 0;
    std::int32_t parentId = 0;
    wire::WideString name;

    EXPECT_TRUE(client.nextRegion(id, parentId, name));
    EXPECT_EQ(name, u"South");
    EXPECT_EQ(id, 2);
    EXPECT_EQ(parentId, 1);
    EXPECT_TRUE(client.nextRegion(id, parentId, name));
    EXPECT_EQ(name, u"North");
    EXPECT_FALSE(client.nextRegion(id, parentId, name));
    EXPECT_FALSE(client.nextRegion(id, parentId, name));
}

TEST_F(Regions, aNewListReplacesWhatWasLeft) {
    answer({frame({dataMessage(hex("01 00") + north)}), frame({dataMessage(hex("01 00") + south)})});
    CQVXAdminClass client(settings);

    client.listRegions(RegionKind::printersAndQueues);
    client.listRegions(RegionKind::printersAndQueues);

    EXPECT_EQ(client.regions(), (std::vector<RegionRecord>{{u"South", 2, 1}}));
}

TEST_F(Regions, aCountOfZeroIsAnEmptyList) {
    answer({frame({dataMessage(hex("00 00"))})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listRegions(RegionKind::printersAndQueues));
    EXPECT_TRUE(client.regions().empty());
}

TEST_F(Regions, aCountOf32768OrMoreReadsAsNone) {
    answer({frame({dataMessage(hex("00 80"))}), frame({dataMessage(hex("FF FF") + north)})});
    CQVXAdminClass client(settings);

    EXPECT_TRUE(client.listRegions(RegionKind::printersAndQueues));
    EXPECT_TRUE(client.regions().empty());
    EXPECT_TRUE(client.listRegions(RegionKind::printersAndQueues));
    EXPECT_TRUE(client.regions().empty());
}

TEST_F(Regions, aListWithoutAServerThrows) {
    CQVXAdminClass client(settings);

    EXPECT_THROW(client.listRegions(RegionKind::printersAndQueues), std::runtime_error);
    EXPECT_EQ(thrownBy([&] { client.listRegions(RegionKind::printersAndQueues); }), "Failed to connect to server");
}

TEST_F(Regions, aMessageThatEndsWithinARegionThrowsReadingOutsideScope) {
    answer({frame({dataMessage(hex("02 00") + north)})});
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { client.listRegions(RegionKind::printersAndQueues); }), "plain: Reading outside scope");
    EXPECT_TRUE(client.regions().empty());
    EXPECT_EQ(observer.ended.at(0).outcome, CommandOutcome::failed);
}

TEST_F(Regions, aReplyThatDoesNotComeThrowsFailedToGetMessages) {
    serve({[](Connection& connection) { connection.expectFrame(); }});
    CQVXAdminClass client(settings);

    EXPECT_EQ(thrownBy([&] { client.listRegions(RegionKind::printersAndQueues); }), "failed to get messages");
}

TEST_F(Regions, areCreatedWithKindParentAndName) {
    answer({Bytes{}});

    EXPECT_TRUE(CQVXAdminClass(settings).createRegion(RegionKind::printersAndQueues, 5, u"North"));

    EXPECT_EQ(received(), request(1, "00 05 00 00 00 0A 00 4E 00 6F 00 72 00 74 00 68 00"));
    EXPECT_EQ(observer.ended.at(0).summary, "North");
}

TEST_F(Regions, areRenamed) {
    answer({Bytes{}});

    EXPECT_TRUE(CQVXAdminClass(settings).renameRegion(RegionKind::localPrinters, 9, u"Ahrn"));

    EXPECT_EQ(received(), request(2, "01 09 00 00 00 08 00 41 00 68 00 72 00 6E 00"));
}

TEST_F(Regions, areMoved) {
    answer({Bytes{}});

    EXPECT_TRUE(CQVXAdminClass(settings).moveRegion(RegionKind::printersAndQueues, 9, 3));

    EXPECT_EQ(received(), request(3, "00 09 00 00 00 03 00 00 00"));
}

TEST_F(Regions, areDeletedByIdAndThenKind) {
    answer({Bytes{}});

    EXPECT_TRUE(CQVXAdminClass(settings).deleteRegion(RegionKind::localPrinters, 9));

    EXPECT_EQ(received(), request(45, "09 00 00 00 01"));
}

TEST_F(Regions, aChangeWithoutAServerIsFalseAndThrowsNothing) {
    CQVXAdminClass client(settings);

    EXPECT_FALSE(client.createRegion(RegionKind::printersAndQueues, 0, u"North"));
    EXPECT_FALSE(client.renameRegion(RegionKind::printersAndQueues, 1, u"North"));
    EXPECT_FALSE(client.moveRegion(RegionKind::printersAndQueues, 1, 2));
    EXPECT_FALSE(client.deleteRegion(RegionKind::printersAndQueues, 1));
}

} // namespace
} // namespace client
