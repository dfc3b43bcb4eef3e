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
    EXPECT_EQ(shell::columnCalled(u"tatus", queriedTitles), std::nullopt);
}

TEST(FilterQuery, theBeginningOfAnyWordOfATitleWillDo) {
    const QueriedTitles titles{u"Last Jobs Seen", u"SNMP Status", u"Printer Status", u"Jobs In Queue"};

    EXPECT_EQ(shell::columnCalled(u"status", titles), 1);
    EXPECT_EQ(shell::columnCalled(u"Queue", titles), 3);
    EXPECT_EQ(shell::columnCalled(u"inqueue", titles), 3);
    EXPECT_EQ(shell::columnCalled(u"jobs", titles), 3) << "the beginning of a title comes before that of a later word";
    EXPECT_EQ(shell::columnCalled(u"een", titles), std::nullopt);
}

TEST(FilterQuery, tellsWhereItsTermsStand) {
    const auto query = shell::parseFilter(u" a  -name:\"x y\" name: b", queriedTitles);

    ASSERT_EQ(query.terms.size(), 3U);
    EXPECT_EQ(query.terms[0].begin, 1U);
    EXPECT_EQ(query.terms[0].length, 1U);
    EXPECT_EQ(query.terms[1].begin, 4U);
    EXPECT_EQ(query.terms[1].length, 11U);
    EXPECT_EQ(query.terms[2].begin, 22U);
    EXPECT_EQ(query.terms[2].length, 1U);
}

} // namespace
