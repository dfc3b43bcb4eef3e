#include "tests/hosts/desktop/WindowFixture.h"

#include <QHeaderView>

namespace desktoptest {
namespace {

// The columns of a real list of printers.
class Columns : public WindowFixture {
protected:
    void openAt(int width) {
        open(QStringLiteral("Printers/München"));
        window().resize(width, 600);
        settle();
        QTest::qWait(0);
    }
    QHeaderView& header() { return *panes().list().header(); }
    // Of the longest text of the column, or of its title.
    int textWidth(int column) {
        int widest = 0;
        for (int row = 0; row < panes().listModel().rowCount(); ++row) {
            const auto text = panes().listModel().index(row, column).data().toString();
            widest = std::max(widest, panes().list().fontMetrics().horizontalAdvance(text));
        }
        return widest;
    }
};

TEST_F(Columns, fillTheListToItsEdge) {
    openAt(1'400);
    EXPECT_EQ(panes().list().viewport()->width(), header().length());

    window().resize(1'000, 600);
    settle();
    EXPECT_EQ(panes().list().viewport()->width(), header().length());
}

TEST_F(Columns, cutNeitherATextNorATitleWhereThereIsRoom) {
    openAt(1'200);

    for (int column = 0; column < header().count(); ++column) {
        EXPECT_GE(header().sectionSize(column), textWidth(column)) << column;
        EXPECT_GE(header().sectionSize(column), header().sectionSizeHint(column)) << column;
    }
}

TEST_F(Columns, takeNoRoomThatTheTitlesOfOthersNeed) {
    openAt(960);
    constexpr int location = 2;
    const int spare =
        header().sectionSize(location) - std::max(textWidth(location), header().sectionSizeHint(location));

    EXPECT_LE(spare, 14) << "the margins of a cell";
    for (int column = 0; column < header().count(); ++column) {
        EXPECT_GE(header().sectionSize(column), textWidth(column)) << column;
    }
}

TEST_F(Columns, giveUpTheTitlesOfShortTextsFirstWhereThereIsLittleRoom) {
    openAt(860);
    constexpr int model = 1;
    constexpr int printerStatus = 4;

    EXPECT_LT(header().sectionSize(printerStatus), header().sectionSizeHint(printerStatus));
    EXPECT_GT(header().sectionSize(model), header().sectionSize(printerStatus));
}

} // namespace
} // namespace desktoptest
