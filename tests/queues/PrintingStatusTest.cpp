#include "queues/PrintingStatus.h"

#include "wire/Text.h"

#include <gtest/gtest.h>

namespace {

std::string textOf(std::uint8_t status) {
    return wire::toUtf8(queues::printingStatusText(status));
}

TEST(PrintingStatus, hasAWordForEachSmallNumber) {
    EXPECT_EQ(textOf(0), "Idle");
    EXPECT_EQ(textOf(1), "Dispatcher");
    EXPECT_EQ(textOf(2), "Connecting Client");
    EXPECT_EQ(textOf(3), "Client Connecting Printer");
    EXPECT_EQ(textOf(4), "Printing");
}

TEST(PrintingStatus, isEmptyForAnyOtherByteTheDigitsIncluded) {
    EXPECT_EQ(textOf(5), "");
    EXPECT_EQ(textOf('0'), "");
    EXPECT_EQ(textOf('4'), "");
    EXPECT_EQ(textOf(255), "");
}

} // namespace
