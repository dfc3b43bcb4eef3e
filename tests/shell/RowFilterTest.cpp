#include "shell/RowFilter.h"

#include <gtest/gtest.h>

namespace {

TEST(RowFilter, findsATextInWhateverCase) {
    const shell::RowFilter filter(u"laser");

    EXPECT_TRUE(filter.matches(u"Big LASERjet"));
    EXPECT_FALSE(filter.matches(u"Ink"));
}

TEST(RowFilter, emptyLetsEverythingPass) {
    const shell::RowFilter filter;

    EXPECT_TRUE(filter.empty());
    EXPECT_TRUE(filter.matches(u""));
}

} // namespace
