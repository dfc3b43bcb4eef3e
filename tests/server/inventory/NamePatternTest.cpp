#include "server/inventory/NamePattern.h"

#include "server/store/NameKey.h"
#include "tests/server/inventory/InventoryPlace.h"

#include <gtest/gtest.h>

namespace server {
namespace {

using test::InventoryPlace;
using Names = std::vector<std::u16string>;

bool matches(std::u16string_view pattern, std::u16string_view name) {
    return NamePattern(pattern).matches(nameKey(name));
}

Names queuesLike(InventoryPlace& place, std::u16string_view pattern) {
    static_cast<void>(place.connection().table<NameMatching>());
    return test::each(
        test::recordsOf<protocol::FoundQueueRecord>(place.connection().table<QueueSearch>().find(NamePattern(pattern))),
        &protocol::FoundQueueRecord::queueName);
}

TEST(NamePattern, anEmptyOneMatchesEveryName) {
    for (const std::u16string_view pattern :
         {std::u16string_view(), std::u16string_view(u"  \t"), std::u16string_view(u"\0x", 2)}) {
        EXPECT_TRUE(NamePattern(pattern).matchesAll());
        EXPECT_TRUE(matches(pattern, u"anything"));
        EXPECT_TRUE(matches(pattern, u""));
    }
}

TEST(NamePattern, aPieceOfTheNameIsEnoughInCapitalOrSmallLetters) {
    EXPECT_TRUE(matches(u" hq1 ", u"BER-HQ1-003"));
    EXPECT_TRUE(matches(u"ŁÓDŹ", u"Halle Łódź 2"));
    EXPECT_FALSE(matches(u"hq2", u"BER-HQ1-003"));
    EXPECT_FALSE(matches(u"longer than it", u"it"));
}

TEST(NamePattern, aPieceDoesNotMatchHalvesOfTwoUnits) {
    EXPECT_FALSE(matches(u"\u6100", u"ab")); // 00 61 00 62 holds the bytes 61 00
}

TEST(NamePattern, withStarsAndQuestionMarksItIsTheWholeName) {
    EXPECT_TRUE(matches(u"ber*", u"BER-HQ1"));
    EXPECT_FALSE(matches(u"hq*", u"BER-HQ1"));
    EXPECT_TRUE(matches(u"*hq?", u"BER-HQ1"));
    EXPECT_FALSE(matches(u"*hq?", u"BER-HQ12"));
    EXPECT_TRUE(matches(u"*a*b*a*", u"xxabxxbaxx"));
    EXPECT_FALSE(matches(u"*a*b*c", u"abab"));
    EXPECT_TRUE(matches(u"***", u""));
    EXPECT_FALSE(matches(u"?", u""));
    EXPECT_TRUE(matches(u"a*aab", u"aaaaaaaab"));
}

TEST(QueueSearch, findsQueuesAndFollowPrintQueuesInTheOrderOfNames) {
    InventoryPlace place;
    const auto north = place.addRegion(u"North");
    const auto home = place.addRegion(u"Home", 0, 1);
    const auto printer = place.addPrinter(u"Color printer", north);
    place.addQueue(u"q2 color", printer);
    place.addQueue(u"Q1 Color", printer);
    place.addQueue(u"Mono", printer);
    place.add(3, u"color follow me", north);
    place.add(6, u"Color at home", home);
    EXPECT_EQ(queuesLike(place, u"COLOR"), (Names{u"color follow me", u"Q1 Color", u"q2 color"}));
    EXPECT_EQ(queuesLike(place, u"q?*"), (Names{u"Q1 Color", u"q2 color"}));
    EXPECT_EQ(queuesLike(place, u""), (Names{u"color follow me", u"Mono", u"Q1 Color", u"q2 color"}));
    EXPECT_EQ(queuesLike(place, u"nobody"), Names{});
}

} // namespace
} // namespace server
