#include "hosts/ctl/ListChoice.h"

#include "hosts/ctl/Failure.h"

#include <gtest/gtest.h>

namespace {

ctl::ListChoice chosen(const char* columns, const char* sort) {
    ctl::Options options;
    options.columns = columns;
    options.sort = sort;
    return ctl::parseListChoice(options);
}

TEST(ListChoice, namesStandBetweenCommas) {
    const auto choice = chosen("Name, Jobs In Queue", "-Jobs,Name");

    ASSERT_EQ(choice.columns.size(), 2U);
    EXPECT_EQ(choice.columns[1], u"Jobs In Queue");
    ASSERT_EQ(choice.sort.size(), 2U);
    EXPECT_EQ(choice.sort[0].column, u"Jobs");
    EXPECT_TRUE(choice.sort[0].descending);
    EXPECT_FALSE(choice.sort[1].descending);
}

TEST(ListChoice, aMissingNameIsAWrongUse) {
    for (const auto* const names : {"", "a,", ",a", "a,,b", "-"}) {
        EXPECT_THROW(static_cast<void>(chosen("a", names)), ctl::Failure) << names;
        EXPECT_THROW(static_cast<void>(chosen(names, "a")), ctl::Failure) << names;
    }
}

TEST(ListChoice, nothingGivenChoosesEverything) {
    EXPECT_TRUE(ctl::parseListChoice({}).empty());
}

} // namespace
