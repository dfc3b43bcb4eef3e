#include "hosts/common/SystemLocale.h"

#include "tests/support/Environment.h"
#include "tests/support/MadeLocales.h"

#include <gtest/gtest.h>

#include <clocale>
#include <optional>
#include <string>

namespace {

using support::EnvironmentVariable;
using support::MadeLocales;
using Groups = std::vector<std::uint8_t>;

// The locale variables of the environment; those not set here are empty.
struct Wanted {
    std::string all{};
    std::string numeric{};
    std::string language{};
};

platform::NumberFormat formatFor(const Wanted& wanted) {
    const EnvironmentVariable all("LC_ALL", wanted.all);
    const EnvironmentVariable numeric("LC_NUMERIC", wanted.numeric);
    const EnvironmentVariable language("LANG", wanted.language);
    return common::SystemLocale().numberFormat();
}

TEST(SystemLocale, isPlainWhereTheEnvironmentAsksForNothing) {
    const auto format = formatFor({});

    EXPECT_EQ(format.decimalSeparator, u".");
    EXPECT_EQ(format.thousandsSeparator, u"");
    EXPECT_EQ(format.grouping, Groups{});
    EXPECT_EQ(format.decimals, 2);
}

TEST(SystemLocale, isPlainForALocaleThatIsNotThere) {
    const auto format = formatFor({.all = "xx_YY.UTF-8"});

    EXPECT_EQ(format.decimalSeparator, u".");
    EXPECT_EQ(format.grouping, Groups{});
}

TEST(SystemLocale, writesGermanNumbersWithACommaAndPoints) {
    const MadeLocales made{"de_DE.UTF-8"};

    const auto format = formatFor({.all = "de_DE.UTF-8"});

    EXPECT_EQ(format.decimalSeparator, u",");
    EXPECT_EQ(format.thousandsSeparator, u".");
    EXPECT_EQ(format.grouping, (Groups{3, 3}));
    EXPECT_EQ(format.decimals, 2);
}

TEST(SystemLocale, knowsSeparatorsOfSeveralBytes) {
    const MadeLocales made{"fr_FR.UTF-8"};

    const auto format = formatFor({.all = "fr_FR.UTF-8"});

    EXPECT_EQ(format.decimalSeparator, u",");
    EXPECT_EQ(format.thousandsSeparator, u"\u202F");
}

TEST(SystemLocale, readsSeparatorsInTheCharactersOfTheLocale) {
    const MadeLocales made{"fr_FR.ISO-8859-1"};

    const auto format = formatFor({.numeric = "fr_FR.ISO-8859-1", .language = "C.UTF-8"});

    EXPECT_EQ(format.decimalSeparator, u",");
    EXPECT_EQ(format.thousandsSeparator, u"\u00A0");
}

TEST(SystemLocale, letsTheVariableForAllGoBeforeThatForNumbersAndThatBeforeTheLanguage) {
    const MadeLocales made{"de_DE.UTF-8", "en_US.UTF-8"};
    const std::string german = "de_DE.UTF-8";
    const std::string english = "en_US.UTF-8";

    EXPECT_EQ(formatFor({.all = german, .numeric = english, .language = english}).decimalSeparator, u",");
    EXPECT_EQ(formatFor({.numeric = german, .language = english}).decimalSeparator, u",");
    EXPECT_EQ(formatFor({.language = german}).decimalSeparator, u",");
    EXPECT_EQ(formatFor({.all = english, .numeric = german, .language = german}).decimalSeparator, u".");
}

TEST(SystemLocale, leavesTheLocaleOfTheProcessAlone) {
    const MadeLocales made{"de_DE.UTF-8"};
    const std::string before = std::setlocale(LC_ALL, nullptr);

    formatFor({.all = "de_DE.UTF-8"});

    EXPECT_EQ(std::setlocale(LC_ALL, nullptr), before);
    EXPECT_STREQ(std::localeconv()->decimal_point, ".");
}

} // namespace
