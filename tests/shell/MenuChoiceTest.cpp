#include "shell/MenuChoice.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using shell::MenuItem;

const MenuItem separator{.text = {}, .statusText = {}, .separator = true};

MenuItem entry(const char16_t* text) {
    return {.text = text, .statusText = {}, .id = 1};
}

MenuItem disabledEntry(const char16_t* text) {
    return {.text = text, .statusText = {}, .id = 1, .disabled = true};
}

TEST(MenuChoice, theFirstEntryThatCanBeChosenOpens) {
    const std::vector menu{separator, disabledEntry(u"Deploy"), entry(u"Edit limit"), entry(u"Remove limit")};

    EXPECT_EQ(&menu[2], shell::openingEntry(menu));
}

TEST(MenuChoice, nothingOpensWhereTheFirstEntryDestroysSomething) {
    EXPECT_EQ(nullptr, shell::openingEntry(std::vector{entry(u"Delete Printer")}));
    EXPECT_EQ(nullptr, shell::openingEntry(std::vector{entry(u"Remove Install"), entry(u"Set Install")}));
    EXPECT_EQ(nullptr, shell::openingEntry({}));
}

TEST(MenuChoice, theEntryThatRemovesIsKnownByItsFirstWordInAnyCase) {
    const std::vector menu{entry(u"Create region"), separator, disabledEntry(u"Delete all"), entry(u"delete Region")};

    EXPECT_EQ(&menu[3], shell::removingEntry(menu));
}

TEST(MenuChoice, aWordThatOnlyBeginsLikeThatRemovesNothing) {
    const std::vector menu{entry(u"Deleted jobs"), entry(u"Edit"), entry(u"Undelete")};

    EXPECT_EQ(nullptr, shell::removingEntry(menu));
    EXPECT_EQ(menu.data(), shell::openingEntry(menu));
}

TEST(MenuChoice, anEntryOfOneWordRemovesToo) {
    const std::vector menu{entry(u"Remove")};

    EXPECT_EQ(menu.data(), shell::removingEntry(menu));
}

} // namespace
