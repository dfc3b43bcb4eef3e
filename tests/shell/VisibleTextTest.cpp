#include "shell/VisibleText.h"

#include <gtest/gtest.h>

namespace {

TEST(VisibleText, controlCharactersBecomePictures) {
    EXPECT_EQ(shell::visibleText(u"a\nb\tc\u001B[2J\u007F"), u"a\u240Ab\u2409c\u241B[2J\u2421");
}

TEST(VisibleText, whatTurnsTheDirectionOfWritingIsReplaced) {
    EXPECT_EQ(shell::visibleText(u"a\u202Eb\u0085"), u"a\uFFFDb\uFFFD");
}

TEST(VisibleText, otherTextStays) {
    EXPECT_EQ(shell::visibleText(u"Zürich \U0001F5A8 مكتب"), u"Zürich \U0001F5A8 مكتب");
}

} // namespace
