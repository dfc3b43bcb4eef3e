#include "wire/Frame.h"
#include "tests/support/Bytes.h"

#include <gtest/gtest.h>

using support::Bytes;
using wire::frameChecksum;

TEST(Frame, theChecksumOfNothingIsZero) {
    EXPECT_EQ(frameChecksum({}), 0u);
}

TEST(Frame, theChecksumSumsUnsignedBytes) {
    EXPECT_EQ(frameChecksum(support::hex("01 05 00 00 00")), 6u);
    EXPECT_EQ(frameChecksum(support::hex("FF FF 80")), 0x27Eu);
}

TEST(Frame, theChecksumOfEveryLengthIsThePlainSum) {
    Bytes bytes;
    std::uint32_t sum = 0;
    for (std::uint32_t length = 1; length < 5000; ++length) {
        const auto byte = static_cast<std::uint8_t>(0xFF - length % 7);
        bytes.push_back(byte);
        sum += byte;
        ASSERT_EQ(frameChecksum(bytes), sum) << length;
    }
}

TEST(Frame, theLargestBodyOfLargestBytesIsSummedWithoutLoss) {
    const Bytes bytes(128000, 0xFF);
    EXPECT_EQ(frameChecksum(bytes), 128000u * 255u);
}

TEST(Frame, theChecksumWrapsAt32Bits) {
    const Bytes bytes(16843010, 0xFF); // 255 times that is 254 more than 32 bits hold
    EXPECT_EQ(frameChecksum(bytes), 254u);
}

TEST(Frame, theHeaderIsCountSizeAndChecksum) {
    const auto bytes = wire::encodeFrameHeader({.count = 2, .size = 0x10, .checksum = 0x01020304});
    EXPECT_EQ(support::toHex({bytes.begin(), bytes.end()}), "02 10 00 00 00 04 03 02 01");
}

TEST(Frame, theHeaderIsReadAsItIsWritten) {
    const Bytes bytes = support::hex("03 01 F4 01 00 04 03 02 01");
    const auto header = wire::decodeFrameHeader(std::span<const std::uint8_t, 9>(bytes.data(), 9));
    EXPECT_EQ(header.count, 3);
    EXPECT_EQ(header.size, 128001u);
    EXPECT_EQ(header.checksum, 0x01020304u);
}
