#include "server/commands/ReplyBuffer.h"

#include "protocol/estate/Region.h"
#include "protocol/estate/StatusReply.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

namespace server {
namespace {

std::string hexOf(const ReplyBuffer& buffer) {
    const auto bytes = buffer.bytes();
    return support::toHex({bytes.begin(), bytes.end()});
}

TEST(ReplyBuffer, anEmptyStatusIsOneFrameWithOneMessage) {
    ReplyBuffer buffer;
    buffer.putFrame(protocol::StatusReply{});
    EXPECT_EQ(hexOf(buffer), "01 0D 00 00 00 0E 00 00 00 01 0D 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(ReplyBuffer, aRegionGoesOutFieldByField) {
    ReplyBuffer buffer;
    buffer.putFrame(protocol::RegionRecord{.name = u"A\u6771", .id = 2, .parentId = -1});
    EXPECT_EQ(hexOf(buffer), "01 13 00 00 00 2F 05 00 00 01 13 00 00 00 04 00 41 00 71 67 02 00 00 00 FF FF FF FF");
}

TEST(ReplyBuffer, theCountOfAListIsAFrameOfItsOwn) {
    ReplyBuffer buffer;
    buffer.putCountFrame(32767);
    EXPECT_EQ(hexOf(buffer), "01 07 00 00 00 86 01 00 00 01 07 00 00 00 FF 7F");
}

TEST(ReplyBuffer, wideTextGoesOutAsTheUnitsThatAreStored) {
    ReplyBuffer buffer;
    buffer.put(std::u16string{0xFEFF, 0xD83D, 0xDE00, 0});
    EXPECT_EQ(hexOf(buffer), "08 00 FF FE 3D D8 00 DE 00 00");
}

TEST(ReplyBuffer, framesFollowOneAnother) {
    ReplyBuffer buffer;
    buffer.putCountFrame(0);
    const auto one = buffer.size();
    buffer.putCountFrame(0);
    EXPECT_EQ(buffer.size(), 2 * one);
    buffer.clear();
    EXPECT_EQ(buffer.size(), 0U);
}

} // namespace
} // namespace server
