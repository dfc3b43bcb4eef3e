#include "server/inventory/Address.h"

#include "server/inventory/IpScope.h"
#include "server/inventory/RangeMap.h"
#include "server/inventory/ReportPeriod.h"

#include <gtest/gtest.h>

namespace server {
namespace {

Address at(std::string_view text) {
    return parseAddress(text).value();
}

// What the scope covers of these addresses, or "?" when it cannot be understood.
std::string covered(std::string_view scope) {
    const auto parsed = IpScope::parse(scope);
    if (!parsed) {
        return "?";
    }
    std::string text;
    for (const auto* const one : {"10.1.0.0", "10.1.2.3", "10.1.2.255", "10.2.0.0", "fd00::7"}) {
        text += parsed->covers(at(one)) ? std::string(text.empty() ? "" : " ") + one : std::string();
    }
    return text;
}

TEST(Address, bothVersionsAreReadAndBlanksAroundThemDoNotMatter) {
    EXPECT_TRUE(isVersion4(at("10.1.2.3")));
    EXPECT_EQ(at(" 10.1.2.3\t"), at("10.1.2.3"));
    EXPECT_EQ(at("::ffff:10.1.2.3"), at("10.1.2.3"));
    EXPECT_FALSE(isVersion4(at("FD00::1")));
    EXPECT_EQ(at("FD00::1"), at("fd00:0:0::1"));
    EXPECT_EQ(parseAddress(u"10.1.2.3"), at("10.1.2.3"));
}

TEST(Address, otherTextsAreNone) {
    for (const std::string_view text :
         {"", " ", "printer", "10.1.2", "10.1.2.256", "10.1.2.3/8", "10.1.2.3.4", ":::"}) {
        EXPECT_EQ(parseAddress(text), std::nullopt) << text;
    }
    EXPECT_EQ(parseAddress(std::string_view("10.1.2.3\0x", 10)), std::nullopt);
    EXPECT_EQ(parseAddress(u"10.1.2.\u0663"), std::nullopt);
}

TEST(Address, keysAreInTheOrderOfNumbersWithNamesBehind) {
    EXPECT_LT(addressKey("10.1.2.9"), addressKey("10.1.2.10"));
    EXPECT_LT(addressKey("255.255.255.255"), addressKey("fd00::1"));
    EXPECT_LT(addressKey("fd00::1"), addressKey("printer-1"));
    EXPECT_EQ(addressKey(" Printer-1 "), addressKey("printer-1"));
    EXPECT_EQ(addressKey(" "), Bytes());
}

TEST(IpScope, nothingIsEverything) {
    EXPECT_EQ(covered(""), "10.1.0.0 10.1.2.3 10.1.2.255 10.2.0.0 fd00::7");
    EXPECT_EQ(covered(" ; , "), "10.1.0.0 10.1.2.3 10.1.2.255 10.2.0.0 fd00::7");
    EXPECT_TRUE(IpScope::parse("")->covers(std::nullopt));
    EXPECT_FALSE(IpScope::parse("10.1.2.3")->covers(std::nullopt));
}

TEST(IpScope, addressesRangesBlocksAndStarsAreUnderstood) {
    EXPECT_EQ(covered("10.1.2.3"), "10.1.2.3");
    EXPECT_EQ(covered("10.1.0.0-10.1.2.3"), "10.1.0.0 10.1.2.3");
    EXPECT_EQ(covered("10.1.0.0  -  10.1.2.3"), "10.1.0.0 10.1.2.3");
    EXPECT_EQ(covered("10.1.2.99/24"), "10.1.2.3 10.1.2.255");
    EXPECT_EQ(covered("10.0.0.0/8"), "10.1.0.0 10.1.2.3 10.1.2.255 10.2.0.0");
    EXPECT_EQ(covered("0.0.0.0/0"), "10.1.0.0 10.1.2.3 10.1.2.255 10.2.0.0");
    EXPECT_EQ(covered("10.1.2.3/32"), "10.1.2.3");
    EXPECT_EQ(covered("10.1.*"), "10.1.0.0 10.1.2.3 10.1.2.255");
    EXPECT_EQ(covered("10.1.2.*"), "10.1.2.3 10.1.2.255");
    EXPECT_EQ(covered("10.*.*.*"), "10.1.0.0 10.1.2.3 10.1.2.255 10.2.0.0");
    EXPECT_EQ(covered("fd00::/16"), "fd00::7");
    EXPECT_EQ(covered("fd00::1-fd00::8"), "fd00::7");
}

TEST(IpScope, severalAreSeparatedByCommasSemicolonsOrBlanks) {
    EXPECT_EQ(covered("10.1.2.3,10.2.0.0"), "10.1.2.3 10.2.0.0");
    EXPECT_EQ(covered(" 10.1.2.3 ;\r\n 10.2.*  "), "10.1.2.3 10.2.0.0");
}

TEST(IpScope, aStarAloneIsEveryAddressOfVersionFour) {
    EXPECT_EQ(covered("*"), "10.1.0.0 10.1.2.3 10.1.2.255 10.2.0.0");
}

TEST(IpScope, whatCannotBeUnderstoodIsNoScope) {
    for (const std::string_view text :
         {"office", "10.1.2", "10.1.2.3-", "-", "- 10.1.2.3", "10.1.2.9-10.1.2.3", "10.1.2.3-fd00::1", "10.1.2.3/33",
          "10.1.2.3/", "10.1.2.3/-1", "10.1.2.3/8x", "fd00::/129", "10.*.2.3", "10.1*", "10.1.2.3.*", "fd00::*",
          "10.1.2.3 office", "10.1.2.3-10.1.2.5-10.1.2.9"}) {
        EXPECT_EQ(covered(text), "?") << text;
    }
}

TEST(RangeMap, noRangesDecideNothing) {
    EXPECT_EQ(RangeMap({}).at(at("10.1.2.3")), std::nullopt);
}

TEST(RangeMap, bothEndsBelongToARange) {
    const RangeMap map({{.block = {at("10.1.0.0"), at("10.1.0.9")}, .rangeType = 1}});
    EXPECT_EQ(map.at(at("10.0.255.255")), std::nullopt);
    EXPECT_EQ(map.at(at("10.1.0.0")), 1);
    EXPECT_EQ(map.at(at("10.1.0.9")), 1);
    EXPECT_EQ(map.at(at("10.1.0.10")), std::nullopt);
}

TEST(RangeMap, theNarrowestRangeDecidesAndThenTheLastOne) {
    const AddressBlock wide{at("10.0.0.0"), at("10.255.255.255")};
    const AddressBlock narrow{at("10.1.0.0"), at("10.1.0.9")};
    const RangeMap map({{.block = narrow, .rangeType = 0}, {.block = wide, .rangeType = 1}});
    EXPECT_EQ(map.at(at("10.1.0.5")), 0);
    EXPECT_EQ(map.at(at("10.1.0.10")), 1);
    const RangeMap twice({{.block = narrow, .rangeType = 0}, {.block = narrow, .rangeType = 2}});
    EXPECT_EQ(twice.at(at("10.1.0.5")), 2);
}

TEST(RangeMap, aRangeThatForcesDecidesBeforeANarrowerOne) {
    const AddressBlock wide{at("10.0.0.0"), at("10.255.255.255")};
    const AddressBlock narrow{at("10.1.0.0"), at("10.1.0.9")};
    for (const std::int32_t forcing : {3, 4}) {
        const RangeMap map({{.block = wide, .rangeType = forcing}, {.block = narrow, .rangeType = 0}});
        EXPECT_EQ(map.at(at("10.1.0.5")), forcing);
    }
}

TEST(RangeMap, aRangeMayReachTheLastAddressOfAll) {
    const auto last = at("ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff");
    const RangeMap map({{.block = {at("::"), last}, .rangeType = 1}});
    EXPECT_EQ(map.at(at("::")), 1);
    EXPECT_EQ(map.at(last), 1);
}

TEST(ReportPeriod, aDayIsMeantAsAWhole) {
    const auto period = ReportPeriod::parse(u"2014-03-05", u"2014-03-05");
    ASSERT_TRUE(period.has_value());
    EXPECT_EQ(period->from, "2014-03-05 00:00:00");
    EXPECT_EQ(period->to, "2014-03-05 23:59:59");
    EXPECT_FALSE(period->isBackwards());
}

TEST(ReportPeriod, timesAndFractionsAreRead) {
    const auto period = ReportPeriod::parse(u" 2014-3-5 1:02:03 ", u"2014-03-05 17:04:09.250");
    ASSERT_TRUE(period.has_value());
    EXPECT_EQ(period->from, "2014-03-05 01:02:03");
    EXPECT_EQ(period->to, "2014-03-05 17:04:09");
}

TEST(ReportPeriod, emptyDatesAreNoLimits) {
    const auto period = ReportPeriod::parse(u"", u" ");
    ASSERT_TRUE(period.has_value());
    EXPECT_LT(period->from, "1970-01-01 00:00:00");
    EXPECT_GT(period->to, "2999-12-31 23:59:59");
    EXPECT_TRUE(ReportPeriod::parse(u"2014-03-06", u"2014-03-05")->isBackwards());
}

TEST(ReportPeriod, whatIsNoDateIsRefused) {
    for (const auto* const text :
         {u"yesterday", u"2014", u"2014-02-30", u"2014-13-01", u"05.03.2014", u"2014-03-05 25:00:00",
          u"2014-03-05 noon", u"2014-03-05 10:00", u"-1-01-01", u"12014-01-01"}) {
        EXPECT_EQ(ReportPeriod::parse(text, u""), std::nullopt) << wire::toUtf8(text);
        EXPECT_EQ(ReportPeriod::parse(u"", text), std::nullopt);
    }
}

} // namespace
} // namespace server
