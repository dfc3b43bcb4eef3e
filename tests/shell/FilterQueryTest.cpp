#include "shell/FilterQuery.h"

#include <gtest/gtest.h>

namespace {

using QueriedTitles = std::vector<wire::WideString>;
using shell::FilterProblem;
using shell::FilterTest;

const QueriedTitles queriedTitles{u"Printer Name", u"Printer Status", u"Name"};

TEST(FilterQuery, readsAConditionOfAColumn) {
    const auto query = shell::parseFilter(u"-Name:>=\"a 10\"", queriedTitles);

    ASSERT_EQ(query.terms.size(), 1U);
    EXPECT_TRUE(query.terms[0].negated);
    EXPECT_EQ(query.terms[0].column, 2);
    EXPECT_EQ(query.terms[0].test, FilterTest::greaterOrEqual);
    EXPECT_TRUE(query.problems.empty());
}

TEST(FilterQuery, tellsWhichColumnThereIsNot) {
    const auto query = shell::parseFilter(u"x -colour:red y", queriedTitles);

    ASSERT_EQ(query.problems.size(), 1U);
    EXPECT_EQ(query.problems[0].kind, FilterProblem::Kind::unknownColumn);
    EXPECT_EQ(query.problems[0].begin, 2U);
    EXPECT_EQ(query.problems[0].length, 11U);
    EXPECT_EQ(shell::describe(query.problems[0]),
              u"There is no column \"colour\"; the filter takes this part as plain text");
    EXPECT_EQ(query.terms.size(), 3U);
}

TEST(FilterQuery, tellsWhereAQuoteBeginsThatDoesNotEnd) {
    const auto query = shell::parseFilter(u"name:\"a b", queriedTitles);

    ASSERT_EQ(query.problems.size(), 1U);
    EXPECT_EQ(query.problems[0].kind, FilterProblem::Kind::openQuote);
    EXPECT_EQ(query.problems[0].begin, 5U);
    EXPECT_EQ(query.problems[0].length, 4U);
    EXPECT_EQ(shell::describe(query.problems[0]), u"The filter has a quote without an end");
}

TEST(FilterQuery, aTimeIsNoColumn) {
    EXPECT_TRUE(shell::parseFilter(u"17:04 :x", queriedTitles).problems.empty());
}

TEST(FilterQuery, aWholeTitleComesBeforeTheBeginningOfAnother) {
    EXPECT_EQ(shell::columnCalled(u"name", queriedTitles), 2);
    EXPECT_EQ(shell::columnCalled(u"PRINTER", queriedTitles), 0);
    EXPECT_EQ(shell::columnCalled(u"printers", queriedTitles), 1);
    EXPECT_EQ(shell::columnCalled(u"Printer  St", queriedTitles), 1);
    EXPECT_EQ(shell::columnCalled(u"", queriedTitles), std::nullopt);
    EXPECT_EQ(shell::columnCalled(u"status", queriedTitles), std::nullopt);
}

} // namespace
