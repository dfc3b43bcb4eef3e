#include "wire/ByteBuffer.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace {

using wire::ByteBuffer;

constexpr std::uint32_t gibibyte = 0x40000000;

TEST(ByteBuffer, growsAsBytesAreAppended) {
    ByteBuffer buffer;
    for (std::uint8_t byte = 0; byte < 200; ++byte) {
        buffer.appendValue(byte);
    }

    ASSERT_EQ(buffer.size(), 200U);
    EXPECT_GE(buffer.capacity(), 200U);
    EXPECT_EQ(buffer.data()[0], 0);
    EXPECT_EQ(buffer.data()[199], 199);
}

TEST(ByteBuffer, keepsItsMemoryWhenItIsCleared) {
    ByteBuffer buffer;
    buffer.reserve(100);
    buffer.append("abc", 3);
    buffer.clear();

    EXPECT_EQ(buffer.size(), 0U);
    EXPECT_EQ(buffer.capacity(), 100U);
}

// Memory that is never written costs nothing, so these two can be so large.
TEST(ByteBuffer, refusesToGrowBeyondTwoGibibytesWhereTwiceItsSizeWouldHaveDone) {
    ByteBuffer buffer;
    buffer.extend(gibibyte + gibibyte / 2);

    EXPECT_THROW(buffer.extend(gibibyte), std::length_error);

    EXPECT_EQ(buffer.size(), gibibyte + gibibyte / 2);
    EXPECT_LE(buffer.size(), buffer.capacity());
}

TEST(ByteBuffer, growsUpToTwoGibibytes) {
    ByteBuffer buffer;
    buffer.reserve(2ULL * gibibyte - 1);
    buffer.extend(2ULL * gibibyte - 1);

    EXPECT_EQ(buffer.size(), 2U * gibibyte - 1);
    EXPECT_THROW(buffer.extend(1), std::length_error);
}

} // namespace
