#include "shell/ListExport.h"

#include <gtest/gtest.h>

#include <sstream>

namespace {

using Cells = std::vector<std::vector<wire::WideString>>;

// The table's first row of cells is that of the titles.
shell::Table tableOf(const Cells& cells) {
    return {.columns = cells.front(), .rowCount = cells.size() - 1, .cell = [&](std::size_t row, std::size_t column) {
                return wire::WideStringView(cells[row + 1][column]);
            }};
}

std::string written(void (*write)(std::ostream&, const shell::Table&), const Cells& cells) {
    std::ostringstream out;
    write(out, tableOf(cells));
    return out.str();
}

std::string writtenWithin(std::size_t width, const Cells& cells) {
    std::ostringstream out;
    shell::writeText(out, tableOf(cells), width);
    return out.str();
}

TEST(ListExport, csvHasATitleLineAndEndsLinesWithCrLf) {
    EXPECT_EQ(written(shell::writeCsv, {{u"Name", u"Jobs"}, {u"Hall", u"3"}}), "Name,Jobs\r\nHall,3\r\n");
}

TEST(ListExport, csvQuotesCommasQuotesAndLineBreaks) {
    EXPECT_EQ(written(shell::writeCsv, {{u"Name"}, {u"a,b"}, {u"say \"hi\""}, {u"two\nlines"}}),
              "Name\r\n\"a,b\"\r\n\"say \"\"hi\"\"\"\r\n\"two\nlines\"\r\n");
}

TEST(ListExport, csvIsUtf8) {
    EXPECT_EQ(written(shell::writeCsv, {{u"Ort"}, {u"Zürich"}}), "Ort\r\nZ\xC3\xBCrich\r\n");
}

TEST(ListExport, jsonHoldsColumnsAndRows) {
    EXPECT_EQ(written(shell::writeJson, {{u"Name", u"Jobs"}, {u"Hall", u"3"}, {u"Roof", u"0"}}),
              "{\"columns\": [\"Name\", \"Jobs\"], \"rows\": [\n  [\"Hall\", \"3\"],\n  [\"Roof\", \"0\"]\n]}\n");
}

TEST(ListExport, jsonOfAnEmptyListHasNoRows) {
    EXPECT_EQ(written(shell::writeJson, {{u"Name"}}), "{\"columns\": [\"Name\"], \"rows\": []}\n");
}

TEST(ListExport, jsonEscapesWhatNeedsIt) {
    EXPECT_EQ(written(shell::writeJson, {{u"N"}, {u"a\"b\\c\n\t\u0001"}}),
              "{\"columns\": [\"N\"], \"rows\": [\n  [\"a\\\"b\\\\c\\n\\t\\u0001\"]\n]}\n");
}

TEST(ListExport, textAlignsColumnsByTheirWidthOnTheScreen) {
    EXPECT_EQ(written(shell::writeText, {{u"Name", u"Jobs"}, {u"東京", u"3"}, {u"Hall", u""}}),
              "Name  Jobs\n----  ----\n東京  3\nHall\n");
}

TEST(ListExport, textMakesLineBreaksVisible) {
    EXPECT_EQ(written(shell::writeText, {{u"Name"}, {u"a\nb"}}), "Name\n----\na\u240Ab\n");
}

TEST(ListExport, textCutsTheWidestColumnsAtTheEdgeOfATerminal) {
    EXPECT_EQ(writtenWithin(20, {{u"Name", u"Comment"}, {u"Hall 1", u"beside the entrance"}, {u"東京東京", u"x"}}),
              "Name      Comment\n--------  ----------\nHall 1    beside th…\n東京東京  x\n");
}

TEST(ListExport, textThatFitsIsNotCut) {
    EXPECT_EQ(writtenWithin(10, {{u"Name", u"Jobs"}, {u"Hall", u"3"}}), "Name  Jobs\n----  ----\nHall  3\n");
}

TEST(ListExport, textKeepsAFewCellsOfEachColumn) {
    EXPECT_EQ(writtenWithin(1, {{u"Long name", u"Jobs"}, {u"Hall", u"3"}}), "Long …  Jobs\n------  ----\nHall    3\n");
}

TEST(ListExport, textOfAListWithoutColumnsIsEmpty) {
    EXPECT_EQ(written(shell::writeText, {{}}), "");
}

} // namespace
