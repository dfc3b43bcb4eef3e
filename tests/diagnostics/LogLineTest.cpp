#include "diagnostics/LogLine.h"
#include "diagnostics/LoggerI.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <unistd.h>

using namespace QvxDiagnostics;

namespace {

std::string lineWith(std::uint32_t flags, const std::vector<std::string>& tags = {}) {
    return logLine(flags, "file.cpp", 42, "work", "error", "it broke", tags);
}

} // namespace

TEST(LogLine, aLineWithOnlyLevelAndMessageReadsLevelBarMessage) {
    EXPECT_EQ(lineWith(0), "error|it broke\n");
}

TEST(LogLine, theSourceStandsBetweenLevelAndMessage) {
    EXPECT_EQ(lineWith(0x20), "error|file.cpp|42|work|it broke\n");
}

TEST(LogLine, theThreadStandsBeforeTheSource) {
    EXPECT_EQ(lineWith(0x80 | 0x20), "error|" + std::to_string(::gettid()) + "|file.cpp|42|work|it broke\n");
}

TEST(LogLine, theMessageCanBeLeftOut) {
    EXPECT_EQ(lineWith(0x10), "error\n");
}

TEST(LogLine, tagsStandOnLinesOfTheirOwnByDefault) {
    EXPECT_EQ(lineWith(0, {"one", "two"}), "error|it broke\r\n\t[one]\r\n\t[two]\n");
}

TEST(LogLine, tagsCanStandOnTheSameLine) {
    EXPECT_EQ(lineWith(0x02, {"one", "two"}), "error|it broke|[one]|[two]\n");
}

TEST(LogLine, tagsCanBeLeftOut) {
    EXPECT_EQ(lineWith(0x40, {"one"}), "error|it broke\n");
}

TEST(LogLine, theTimeStampHasEveryNumberFilledToItsWidth) {
    EXPECT_THAT(lineWith(0x04), testing::MatchesRegex("[0-9][0-9][0-9][0-9]-[0-9][0-9]-[0-9][0-9] "
                                                      "[0-9][0-9]:[0-9][0-9]:[0-9][0-9]\\.[0-9][0-9][0-9]"
                                                      "\\|error\\|it broke\n"));
}

TEST(LogLine, aStackDumpFollowsOnLinesOfItsOwn) {
    const std::string text = lineWith(0x08);
    ASSERT_TRUE(text.starts_with("error|it broke\n")) << text;
    EXPECT_THAT(text, testing::HasSubstr("diagnostics_tests: "));
    EXPECT_TRUE(text.ends_with(" bytes\n")) << text;
}
