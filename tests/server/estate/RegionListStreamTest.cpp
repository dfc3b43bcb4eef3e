#include "server/estate/RegionListStream.h"

#include "tests/server/support/Answers.h"
#include "tests/server/support/TestEstate.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using namespace test; // the words of requests

Bytes regionsOf(std::uint8_t kind, std::uint32_t parent) {
    return u8(kind) + u32(parent) + u16(0);
}

TEST(RegionListStream, noRegionsAreOneMessageWithACountOfZero) {
    TestEstate place;
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 0, regionsOf(0, 0))),
              "01 07 00 00 00 08 00 00 00 01 07 00 00 00 00 00");
}

TEST(RegionListStream, regionsComeInOneMessage) {
    TestEstate place;
    place.addRegion(u"B");
    place.addRegion(u"a", 1);
    EXPECT_EQ(support::toHex(answerOf(place.connection(), 0, regionsOf(0, 0))),
              "01 1F 00 00 00 CD 00 00 00 01 1F 00 00 00 02 00 "
              "02 00 61 00 02 00 00 00 01 00 00 00 02 00 42 00 01 00 00 00 00 00 00 00");
}

TEST(RegionListStream, aParentSelectsTheRegionsBelowIt) {
    TestEstate place;
    place.addRegion(u"top");
    place.addRegion(u"below", 1);
    place.addRegion(u"deeper", 2);
    const auto messages = messagesOf(answerOf(place.connection(), 0, regionsOf(0, 1)));
    FieldCursor message(messages.at(0));
    EXPECT_EQ(message.number(2), 1U);
    EXPECT_EQ(message.text16(), u"below");
}

TEST(RegionListStream, aListOfExactlyTheLargestFrameIsOneMessage) {
    TestEstate place;
    place.addRegion(std::u16string((65535 - 7 - 10) / 2, u'x')); // one byte short of the limit: units take two
    EXPECT_EQ(messagesOf(answerOf(place.connection(), 0, regionsOf(0, 0))).size(), 1U);
}

TEST(RegionListStream, aLongerListIsCountedAndSentRecordByRecord) {
    TestEstate place;
    place.addRegion(std::u16string(20000, u'x'));
    place.addRegion(std::u16string(20000, u'y'));
    const auto messages = messagesOf(answerOf(place.connection(), 0, regionsOf(0, 0), 10));
    ASSERT_EQ(messages.size(), 3U);
    EXPECT_EQ(support::toHex(messages[0]), "01 07 00 00 00 02 00");
    FieldCursor second(messages[2]);
    EXPECT_EQ(second.text16(), std::u16string(20000, u'y'));
    EXPECT_EQ(second.number(4), 2U);
    EXPECT_EQ(second.number(4), 0U);
    EXPECT_TRUE(second.atEnd());
}

} // namespace
} // namespace server
