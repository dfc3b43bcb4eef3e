#include "shell/ListClip.h"

#include <gtest/gtest.h>

namespace {

using Cells = std::vector<std::vector<wire::WideString>>;

// The first row of cells is that of the titles.
shell::ListClip clipped(const Cells& cells) {
    return shell::clipOf(
        {.columns = cells.front(), .rowCount = cells.size() - 1, .cell = [&](std::size_t row, std::size_t column) {
             return wire::WideStringView(cells[row + 1][column]);
         }});
}

TEST(ListClip, theTextHasALineForEachRowAndTabsBetweenTheCells) {
    EXPECT_EQ(u"Hall\t3\nRoof\t\n", clipped({{u"Name", u"Jobs"}, {u"Hall", u"3"}, {u"Roof", u""}}).text);
}

TEST(ListClip, aCellWithTabsAndLineBreaksStaysOneCellOfTheText) {
    EXPECT_EQ(u"a b c  d e\tx\n", clipped({{u"N", u"M"}, {u"a\tb\nc\r\nd\u0001e", u"x"}}).text);
}

TEST(ListClip, theTableHasTitlesAndOneRowForEachRow) {
    EXPECT_EQ(u"<table><tr><th>Name</th><th>Jobs</th></tr>\n<tr><td>Hall</td><td>3</td></tr>\n</table>",
              clipped({{u"Name", u"Jobs"}, {u"Hall", u"3"}}).html);
}

TEST(ListClip, theTableShowsMarkupAsText) {
    EXPECT_EQ(u"<table><tr><th>A&amp;B</th></tr>\n<tr><td>&lt;b&gt; &quot;x&quot;</td></tr>\n</table>",
              clipped({{u"A&B"}, {u"<b> \"x\""}}).html);
}

TEST(ListClip, aLineBreakStaysOneInTheTableAndOtherControlCharactersAreBlanks) {
    EXPECT_EQ(u"<table><tr><th>N</th></tr>\n<tr><td>a<br>b<br>c d </td></tr>\n</table>",
              clipped({{u"N"}, {u"a\r\nb\nc\td\u007F"}}).html);
}

TEST(ListClip, lettersOfAllScriptsStayAsTheyAre) {
    const auto clip = clipped({{u"Ort"}, {u"Łódź 東京 \U0001F5A8"}});

    EXPECT_EQ(u"Łódź 東京 \U0001F5A8\n", clip.text);
    EXPECT_NE(wire::WideString::npos, clip.html.find(u"<td>Łódź 東京 \U0001F5A8</td>"));
}

} // namespace
