#include "hosts/ctl/DateTimeText.h"

#include <gtest/gtest.h>

namespace {

using ctl::parseDateTime;
using forms::DateTime;

TEST(DateTimeText, aDayAndATimeAreRead) {
    EXPECT_EQ(parseDateTime("2024-12-31 23:59:58"), (DateTime{2024, 12, 31, 23, 59, 58}));
    EXPECT_EQ(parseDateTime("2024-12-31T23:59"), (DateTime{2024, 12, 31, 23, 59, 0}));
}

TEST(DateTimeText, eitherMayBeLeftOut) {
    EXPECT_EQ(parseDateTime("2024-02-29"), (DateTime{2024, 2, 29, 0, 0, 0}));
    EXPECT_EQ(parseDateTime("07:30"), (DateTime{1970, 1, 1, 7, 30, 0}));
}

TEST(DateTimeText, noneIsNoValue) {
    ASSERT_TRUE(parseDateTime("none"));
    EXPECT_FALSE(*parseDateTime("none"));
}

TEST(DateTimeText, anythingElseIsRefused) {
    for (const auto* const text : {"", "tomorrow", "2023-02-29", "25:00", "2024-1-1", " "}) {
        const auto parsed = parseDateTime(text);
        EXPECT_FALSE(parsed) << text;
    }
}

} // namespace
