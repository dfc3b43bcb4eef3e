#include "client/RecordCursor.h"

#include <gtest/gtest.h>

namespace client {
namespace {

TEST(RecordCursor, handsOutTheLastFirstAndCountsDown) {
    RecordCursor<int> cursor;
    cursor.fill({1, 2});

    EXPECT_EQ(cursor.next(), 2);
    EXPECT_EQ(cursor.records(), std::vector<int>{1});
    EXPECT_EQ(cursor.next(), 1);
    EXPECT_EQ(cursor.next(), std::nullopt);
}

TEST(RecordCursor, aMismatchWithItsArrayThrowsInvalidVectorSubscript) {
    RecordCursor<int> cursor;
    cursor.fill({1}, 2);
    try {
        static_cast<void>(cursor.next());
        FAIL() << "a record that is not there was handed out";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "invalid vector<T> subscript");
    }
}

TEST(RecordCursor, takesAllInTheOrderInWhichTheyCame) {
    RecordCursor<int> cursor;
    cursor.fill({1, 2, 3});
    static_cast<void>(cursor.next());

    EXPECT_EQ(cursor.takeAll(), (std::vector<int>{1, 2}));
    EXPECT_EQ(cursor.next(), std::nullopt);
}

} // namespace
} // namespace client
