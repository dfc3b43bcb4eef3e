#include "rules/PriceText.h"

#include "hosts/common/SystemLocale.h"
#include "tests/support/FixedLocale.h"
#include "tests/support/MadeLocales.h"

#include <gtest/gtest.h>

#include <bit>
#include <clocale>
#include <cstdint>
#include <limits>
#include <string>

namespace {

using rules::formatAmount;
using rules::formatPrice;
using rules::parseHundredths;
using rules::parsePrice;
using support::englishLocale;
using support::FixedLocale;
using support::germanLocale;

const platform::Locale& plain = platform::plainLocale;

TEST(PriceText, showsPricesWithFourDecimals) {
    EXPECT_EQ(formatPrice(plain, 0.2F), u"0.2000");
    EXPECT_EQ(formatPrice(plain, 0), u"0.0000");
    EXPECT_EQ(formatPrice(plain, 1.5), u"1.5000");
    EXPECT_EQ(formatPrice(plain, -0.25), u"-0.2500");
}

TEST(PriceText, showsAmountsWithTwoDecimals) {
    EXPECT_EQ(formatAmount(plain, 25), u"25.00");
    EXPECT_EQ(formatAmount(germanLocale(), 7.5), u"7,50");
}

TEST(PriceText, showsAsManyDecimalsAsTheLocaleHasWhereThoseAreMore) {
    const FixedLocale precise({.decimals = 6});

    EXPECT_EQ(formatPrice(precise, 0.25), u"0.250000");
    EXPECT_EQ(formatPrice(precise, 0.25, 7), u"0.2500000");
    EXPECT_EQ(formatAmount(precise, 0.25), u"0.25");
}

TEST(PriceText, roundsToTheDecimalsThatAreShown) {
    EXPECT_EQ(formatPrice(plain, 0.12346), u"0.1235");
    EXPECT_EQ(formatPrice(plain, 0.99999), u"1.0000");
}

TEST(PriceText, usesTheSeparatorsOfTheLocale) {
    EXPECT_EQ(formatPrice(germanLocale(), 0.2F), u"0,2000");
    EXPECT_EQ(formatPrice(englishLocale(), 0.2F), u"0.2000");
    EXPECT_EQ(formatPrice(germanLocale(), 1234567.5), u"1.234.567,5000");
    EXPECT_EQ(formatPrice(englishLocale(), 1234567.5), u"1,234,567.5000");
    EXPECT_EQ(formatPrice(englishLocale(), -123456), u"-123,456.0000");
    EXPECT_EQ(formatPrice(englishLocale(), 999), u"999.0000");
}

TEST(PriceText, usesSeparatorsOfSeveralUnits) {
    const FixedLocale odd({.decimalSeparator = u"::", .thousandsSeparator = u"\u202F ", .grouping = {3}});

    EXPECT_EQ(formatPrice(odd, 1234.5), u"1\u202F 234::5000");
    EXPECT_EQ(parsePrice(odd, u"12::5"), 12.5F);
}

TEST(PriceText, groupsDigitsAsTheLocaleSays) {
    const FixedLocale indian({.decimalSeparator = u".", .thousandsSeparator = u",", .grouping = {3, 2}});
    const FixedLocale once({.decimalSeparator = u".", .thousandsSeparator = u",", .grouping = {3, 0}});
    const FixedLocale never({.decimalSeparator = u".", .thousandsSeparator = u",", .grouping = {0}});

    EXPECT_EQ(formatAmount(indian, 123456789), u"12,34,56,789.00");
    EXPECT_EQ(formatAmount(once, 123456789), u"123456,789.00");
    EXPECT_EQ(formatAmount(never, 123456789), u"123456789.00");
    EXPECT_EQ(formatAmount(plain, 123456789), u"123456789.00");
}

TEST(PriceText, showsWhatIsNoNumberAsItIs) {
    EXPECT_EQ(formatPrice(englishLocale(), std::numeric_limits<double>::infinity()), u"inf");
    EXPECT_EQ(formatPrice(englishLocale(), -std::numeric_limits<double>::infinity()), u"-inf");
    EXPECT_EQ(formatPrice(englishLocale(), std::numeric_limits<double>::quiet_NaN()), u"nan");
}

TEST(PriceText, showsTheLargestNumbersInFull) {
    EXPECT_EQ(formatPrice(plain, std::numeric_limits<float>::max()), u"340282346638528859811704183484516925440.0000");
    EXPECT_EQ(formatPrice(plain, std::numeric_limits<double>::max()).size(), 309U + 5U);
}

TEST(PriceText, readsBothSpellingsWhereTheCommaSeparates) {
    EXPECT_EQ(parsePrice(germanLocale(), u"23,5"), 23.5F);
    EXPECT_EQ(parsePrice(germanLocale(), u"23.5"), 23.5F);
}

TEST(PriceText, readsUpToTheCommaWhereThePointSeparates) {
    EXPECT_EQ(parsePrice(englishLocale(), u"23,5"), 23.0F);
    EXPECT_EQ(parsePrice(englishLocale(), u"23.5"), 23.5F);
}

TEST(PriceText, readsAPriceInSinglePrecision) {
    EXPECT_EQ(std::bit_cast<std::uint32_t>(parsePrice(plain, u"0.2")), 0x3E4CCCCDU);
    EXPECT_EQ(std::bit_cast<std::uint32_t>(parsePrice(germanLocale(), u"0,1")), 0x3DCCCCCDU);
}

TEST(PriceText, readsTextThatIsNoNumberAsNought) {
    for (const auto* const text :
         {u"", u" ", u"free", u"-", u"+", u".", u",", u"e5", u"--5", u"+-5", u"inf", u"-infinity", u"nan", u"\u0665"}) {
        EXPECT_EQ(parsePrice(plain, text), 0.0F) << wire::toUtf8(text);
    }
}

TEST(PriceText, readsTheNumberAtTheBeginning) {
    EXPECT_EQ(parsePrice(plain, u"12 EUR"), 12.0F);
    EXPECT_EQ(parsePrice(plain, u" \t7.5%"), 7.5F);
    EXPECT_EQ(parsePrice(plain, u"+1.5"), 1.5F);
    EXPECT_EQ(parsePrice(plain, u"-1.5"), -1.5F);
    EXPECT_EQ(parsePrice(plain, u".5"), 0.5F);
    EXPECT_EQ(parsePrice(plain, u"5."), 5.0F);
    EXPECT_EQ(parsePrice(plain, u"1e2x"), 100.0F);
    EXPECT_EQ(parsePrice(plain, u"12e"), 12.0F);
    EXPECT_EQ(parsePrice(plain, u"0x1A"), 26.0F);
    EXPECT_EQ(parsePrice(plain, u"0xg"), 0.0F);
    EXPECT_EQ(parsePrice(plain, u"3\u20AC"), 3.0F);
}

TEST(PriceText, readsANumberThatAPriceCannotHoldAsNought) {
    EXPECT_EQ(parsePrice(plain, u"1e39"), 0.0F);
    EXPECT_EQ(parsePrice(plain, u"-1e39"), 0.0F);
    EXPECT_EQ(parsePrice(plain, u"1e999"), 0.0F);
    EXPECT_EQ(parsePrice(plain, u"1e-999"), 0.0F);
}

TEST(PriceText, doesNotUnderstandThousandsSeparators) {
    EXPECT_EQ(parsePrice(germanLocale(), u"1.234,5"), 1.234F);
    EXPECT_EQ(parsePrice(englishLocale(), u"1,234.5"), 1.0F);
}

TEST(PriceText, aValueShownWithFourDecimalsSurvivesAReadAndRewriteWhereTheCommaSeparates) {
    for (const float value : {0.0F, 0.0001F, 0.2F, 0.1234F, 1.0F, 19.9999F, 999.9999F, -0.5F}) {
        const auto shown = formatPrice(germanLocale(), value);

        EXPECT_EQ(formatPrice(germanLocale(), parsePrice(germanLocale(), shown)), shown);
    }
    EXPECT_EQ(formatPrice(germanLocale(), parsePrice(germanLocale(), u"0,1234")), u"0,1234");
}

TEST(PriceText, followsTheEnvironmentAndNotTheLocaleOfTheProcess) {
    const support::MadeLocales made{"de_DE.UTF-8", "en_US.UTF-8"};
    const support::EnvironmentVariable german("LC_ALL", "de_DE.UTF-8");
    const common::SystemLocale inGerman;
    const support::EnvironmentVariable english("LC_ALL", "en_US.UTF-8");
    const common::SystemLocale inEnglish;
    ASSERT_NE(std::setlocale(LC_ALL, "de_DE.UTF-8"), nullptr);

    EXPECT_EQ(formatPrice(inGerman, 0.2F), u"0,2000");
    EXPECT_EQ(formatPrice(inEnglish, 0.2F), u"0.2000");
    EXPECT_EQ(parsePrice(inEnglish, u"0.2000"), 0.2F);
    EXPECT_EQ(parsePrice(inGerman, u"0,2000"), 0.2F);
    EXPECT_EQ(parsePrice(inGerman, u"0.2000"), 0.2F);

    std::setlocale(LC_ALL, "C");
}

TEST(PriceText, hundredthsAreCutOnTheirDigits) {
    const auto& german = support::germanLocale();

    EXPECT_EQ(parseHundredths(german, u"7,70"), 770);
    EXPECT_EQ(parseHundredths(german, u"7.7"), 770);
    EXPECT_EQ(parseHundredths(german, u"19,999"), 1999);
    EXPECT_EQ(parseHundredths(german, u"0,29 per page"), 29);
    EXPECT_EQ(parseHundredths(german, u"7,6999999999999999999999"), 769);
    EXPECT_EQ(parseHundredths(german, u"-1,999"), -199);
    EXPECT_EQ(parseHundredths(german, u"25"), 2500);
    EXPECT_EQ(parseHundredths(german, u"25,"), 2500);
    EXPECT_EQ(parseHundredths(german, u",5"), 50);
}

TEST(PriceText, everyNumberOfTwoDecimalsIsItsHundredths) {
    for (int hundredths = 0; hundredths < 20000; ++hundredths) {
        const auto text = std::to_string(hundredths / 100) + "," + std::to_string(hundredths / 10 % 10) +
                          std::to_string(hundredths % 10);
        ASSERT_EQ(parseHundredths(support::germanLocale(), wire::toWide(text)), hundredths) << text;
    }
}

TEST(PriceText, hundredthsAreReadAsFreelyAsPrices) {
    const auto& german = support::germanLocale();

    EXPECT_EQ(parseHundredths(german, u"1.234,5"), 123);
    EXPECT_EQ(parseHundredths(german, u"1,5e1"), 1500);
    EXPECT_EQ(parseHundredths(german, u"0x10"), 1600);
    EXPECT_EQ(parseHundredths(german, u""), 0);
    EXPECT_EQ(parseHundredths(german, u"many"), 0);
    EXPECT_EQ(parseHundredths(german, u"1e38"), 0);
    EXPECT_EQ(parseHundredths(german, u"1e999"), 0);
}

TEST(PriceText, aTextThatIsReadAsItStandsHasNoProblem) {
    for (const auto* text : {u"", u"1", u"1.5", u" 1.5 ", u"-2", u".5", u"0x10", u"1e3"}) {
        EXPECT_EQ(rules::priceProblem(plain, text), u"") << wire::toUtf8(text);
    }
    EXPECT_EQ(rules::priceProblem(germanLocale(), u"1,5"), u"");
    EXPECT_EQ(rules::hundredthsProblem(plain, u"19.99"), u"");
    EXPECT_EQ(rules::hundredthsProblem(plain, u"7.70"), u"");
    EXPECT_EQ(rules::hundredthsProblem(plain, u""), u"");
}

TEST(PriceText, aTextThatIsCutSaysAsWhatItIsRead) {
    EXPECT_EQ(rules::priceProblem(plain, u"1.5x"), u"Not a number; it is read as 1.5000");
    EXPECT_EQ(rules::priceProblem(germanLocale(), u"1.234,5"), u"Not a number; it is read as 1,2340");
    EXPECT_EQ(rules::priceProblem(plain, u"none"), u"Not a number; it is read as 0.0000");
    EXPECT_EQ(rules::priceProblem(plain, u"1e99"), u"Not a number; it is read as 0.0000");
    EXPECT_EQ(rules::hundredthsProblem(plain, u"19.999"), u"Only two decimals are kept; it is read as 19.99");
    EXPECT_EQ(rules::hundredthsProblem(plain, u"7%"), u"Not a number; it is read as 7.00");
}

} // namespace
