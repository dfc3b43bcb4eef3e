#include "hosts/ctl/ShellWords.h"
#include "hosts/ctl/Failure.h"

#include <gtest/gtest.h>

namespace {

using ctl::shellWords;
using Words = std::vector<std::string>;

TEST(ShellWords, blanksPartWords) {
    EXPECT_EQ(shellWords("  show\tPrinters  \r"), (Words{"show", "Printers"}));
}

TEST(ShellWords, anEmptyLineHasNone) {
    EXPECT_EQ(shellWords(""), Words());
    EXPECT_EQ(shellWords(" \t"), Words());
}

TEST(ShellWords, quotesKeepBlanks) {
    EXPECT_EQ(shellWords(R"(show "Rules/Price Plans" 'a  b')"), (Words{"show", "Rules/Price Plans", "a  b"}));
}

TEST(ShellWords, quotesInsideOfAWordBelongToIt) {
    EXPECT_EQ(shellWords(R"(--set Name="Hall 1"x)"), (Words{"--set", "Name=Hall 1x"}));
}

TEST(ShellWords, emptyQuotesAreAWord) {
    EXPECT_EQ(shellWords(R"(a "" '')"), (Words{"a", "", ""}));
}

TEST(ShellWords, aBackslashTakesTheMeaningOfWhatFollows) {
    EXPECT_EQ(shellWords(R"(a\ b \# \"c)"), (Words{"a b", "#", "\"c"}));
}

TEST(ShellWords, insideOfDoubleQuotesABackslashMattersOnlyBeforeWhatHasAMeaning) {
    EXPECT_EQ(shellWords(R"("a\"b" "North\/South" "\\")"), (Words{"a\"b", "North\\/South", "\\"}));
}

TEST(ShellWords, insideOfSingleQuotesNothingHasAMeaning) {
    EXPECT_EQ(shellWords(R"('a\"#b')"), (Words{"a\\\"#b"}));
}

TEST(ShellWords, aCommentEndsTheLine) {
    EXPECT_EQ(shellWords("login # and so on \"'"), Words{"login"});
    EXPECT_EQ(shellWords("# all of it"), Words());
}

TEST(ShellWords, insideOfAWordThereIsNoComment) {
    EXPECT_EQ(shellWords("a#b"), Words{"a#b"});
}

TEST(ShellWords, nothingIsExpanded) {
    EXPECT_EQ(shellWords("$HOME * ~"), (Words{"$HOME", "*", "~"}));
}

TEST(ShellWords, aQuoteWithoutItsEndIsRefused) {
    EXPECT_THROW(shellWords("\"a"), ctl::Failure);
    EXPECT_THROW(shellWords("'a\""), ctl::Failure);
    EXPECT_THROW(shellWords("a\\"), ctl::Failure);
}

} // namespace
