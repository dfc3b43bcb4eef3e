#include "client/RecordCursor.h"

#include <gtest/gtest.h>

namespace client {
namespace {

TEST(RecordCursor, handsOutTheLastFirstAndCountsDown) {
    RecordCursor<int> cursor;
    cursor.fill({1, 2}, 2);
    int record = 0;

    EXPECT_TRUE(cursor.next(record));
    EXPECT_EQ(record, 2);
    EXPECT_EQ(cursor.records(), std::vector<int>{1});
    EXPECT_TRUE(cursor.next(record));
    EXPECT_EQ(record, 1);
    EXPECT_FALSE(cursor.next(record));
}

TEST(RecordCursor, aMismatchWithItsArrayThrowsInvalidVectorSubscript) {
    RecordCursor<int> cursor;
    cursor.fill({1}, 2);
    int record = 0;
    try {
        cursor.next(record);
        FAIL() << "a record that is not there was handed out";
    } catch (const std::out_of_range& error) {
        EXPECT_STREQ(error.what(), "invalid vector<T> subscript");
    }
}

TEST(RecordCursor, knowsWhatWasAnnouncedAfterItHasHandedOutAll) {
    RecordCursor<int> cursor;
    cursor.fill({1}, 1);
    int record = 0;
    cursor.next(record);

    EXPECT_EQ(cursor.announced(), 1);
}

TEST(RecordCursor, handsOutNothingWhereTheCountIsBelowZero) {
    RecordCursor<int> cursor;
    cursor.fill({}, -1);
    int record = 0;

    EXPECT_FALSE(cursor.next(record));
    EXPECT_EQ(cursor.announced(), -1);
}

TEST(RecordCursor, takesAllInTheOrderInWhichTheyCame) {
    RecordCursor<int> cursor;
    cursor.fill({1, 2, 3}, 3);
    int record = 0;
    cursor.next(record);

    EXPECT_EQ(cursor.takeAll(), (std::vector<int>{1, 2}));
    EXPECT_FALSE(cursor.next(record));
}

} // namespace
} // namespace client
