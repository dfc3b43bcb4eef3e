#include "tests/transcripts/Transcript.h"
#include "tests/transcripts/LinePattern.h"
#include "tests/transcripts/Renewal.h"

#include <gmock/gmock.h>

#include <sstream>

namespace transcripts {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr auto text = "# Regions.\n"
                      "\n"
                      "$ vantrelctl show Printers \\\n"
                      "      --format csv\n"
                      "Region Name\n"
                      "\n"
                      "# host: vantrelctl\n"
                      "$ vantrelctl call 999\n"
                      "vantrelctl: There is none\n"
                      "? 2\n"
                      "# The end.\n";

Transcript parsed(const std::string& all) {
    std::istringstream stream(all);
    return Transcript::read(stream);
}

TEST(Transcript, holdsCommandsWithWhatTheyPrintAndLeave) {
    const auto transcript = parsed(text);

    ASSERT_EQ(transcript.exchanges.size(), 2U);
    const auto& first = transcript.exchanges[0];
    EXPECT_EQ(first.number, 3U);
    EXPECT_THAT(first.command, ElementsAre("vantrelctl show Printers \\", "      --format csv"));
    EXPECT_THAT(first.expected, ElementsAre("Region Name"));
    EXPECT_EQ(first.status, 0);
    EXPECT_FALSE(first.byVantrelctl);
    const auto& second = transcript.exchanges[1];
    EXPECT_THAT(second.expected, ElementsAre("vantrelctl: There is none"));
    EXPECT_EQ(second.status, 2);
    EXPECT_TRUE(second.byVantrelctl);
}

TEST(Transcript, isWrittenAsItWasRead) {
    std::ostringstream out;
    parsed(text).write(out);

    EXPECT_EQ(out.str(), text);
}

TEST(Transcript, canBeMeantForVantrelctlAsAWhole) {
    const auto transcript = parsed("# host: vantrelctl\n# Raw commands.\n$ vantrelctl a\n\n$ vantrelctl b\n");

    EXPECT_TRUE(transcript.exchanges[0].byVantrelctl);
    EXPECT_TRUE(transcript.exchanges[1].byVantrelctl);
}

TEST(Transcript, hasNoOutputWithoutACommand) {
    EXPECT_THROW(parsed("Region Name\n"), std::runtime_error);
    EXPECT_THROW(parsed("$ vantrelctl a\n\nRegion Name\n"), std::runtime_error);
}

TEST(LinePattern, isTheLineItself) {
    Names names;

    EXPECT_TRUE(matches("a (b)* [c] {\"d\": 1}", "a (b)* [c] {\"d\": 1}", names));
    EXPECT_FALSE(matches("ab", "a.", names));
    EXPECT_FALSE(matches("abc", "ab", names));
    EXPECT_TRUE(matches("{other}", "{other}", names));
}

TEST(LinePattern, knowsWhatChangesFromRunToRun) {
    Names names;

    EXPECT_TRUE(matches("id 0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480.", "id {uuid}.", names));
    EXPECT_FALSE(matches("id 0f8e2a64.", "id {uuid}.", names));
    EXPECT_TRUE(matches("on 2026-11-21 23:24:48.123, 12", "on {date}, {number}", names));
    EXPECT_TRUE(matches("on 2026-11-21", "on {date}", names));
    EXPECT_TRUE(matches("whatever", "{any}", names));
    EXPECT_THAT(names, IsEmpty());
}

TEST(LinePattern, remembersWhatHasAName) {
    Names names;

    EXPECT_TRUE(matches("7 and 8", "{first:number} and {second:number}", names));
    EXPECT_TRUE(matches("8 then 7", "{second} then {first}", names));
    EXPECT_FALSE(matches("7 then 8", "{second} then {first}", names));
    EXPECT_EQ(withNames("call {second} {third} {", names), "call 8 {third} {");
}

TEST(Renewal, keepsThePatternsThatStillMatchInTheirOrder) {
    Names names;
    const std::vector<std::string> patterns{"{", "  id {first:uuid}", "  North", "}",
                                            "{", "  id {uuid}",       "  South", "}"};
    const std::string id = "  id 0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480";

    EXPECT_THAT(renewed(patterns, {"{", id, "  West", "}", "{", id, "  North", "}", "{", id, "  South", "}"}, names),
                ElementsAre("{", "  id {uuid}", "  West", "}", "{", "  id {first:uuid}", "  North", "}", "{",
                            "  id {uuid}", "  South", "}"));
    EXPECT_THAT(renewed(patterns, {"{", id, "  South", "}"}, names), ElementsAre("{", "  id {uuid}", "  South", "}"));
    EXPECT_THAT(renewed({}, {"2026-11-21"}, names), ElementsAre("{date}"));
    EXPECT_THAT(renewed(patterns, {}, names), IsEmpty());
}

TEST(LinePattern, isMadeOfALineWithoutWhatChanges) {
    EXPECT_EQ(patternOf("0f8e2a64-5b1d-4f0e-9c37-6a2d51b7e480 of 2026-11-21 23:24:48"), "{uuid} of {date}");
}

} // namespace
} // namespace transcripts
