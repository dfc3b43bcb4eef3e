#include "hosts/desktop/list/RowSelection.h"

#include "hosts/desktop/list/CopyRows.h"
#include "tests/hosts/desktop/ModelFixture.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace desktoptest {
namespace {

class RowSelectionTest : public ModelFixture {
protected:
    void SetUp() override {
        ModelFixture::SetUp();
        start();
        perform([&](shell::Shell& console) { return console.select(a()); });
    }
    void select(int first, int last) {
        selection.select({model.index(first, 0), model.index(last, model.columnCount() - 1)},
                         QItemSelectionModel::Select);
    }

    desktop::ListModel model{operations, observers, icons};
    QItemSelectionModel selection{&model};
    desktop::RowSelection rows{model, selection};
};

TEST_F(RowSelectionTest, countsRowsAndNotCells) {
    EXPECT_EQ(0U, rows.count());

    select(2, 3);
    select(0, 0);

    EXPECT_EQ(3U, rows.count());
    EXPECT_EQ((std::vector<std::size_t>{0, 2, 3}), rows.rows());
}

TEST_F(RowSelectionTest, theOnlyRowIsThatOfASelectionOfOne) {
    EXPECT_FALSE(rows.only().isValid());
    select(1, 1);
    EXPECT_EQ(model.index(1, 0), rows.only());
    select(2, 2);
    EXPECT_FALSE(rows.only().isValid());
}

TEST_F(RowSelectionTest, theRowWithTheFocusStandsForSeveralIfItIsSelected) {
    EXPECT_FALSE(rows.representative().isValid());
    select(1, 3);
    selection.setCurrentIndex(model.index(2, 0), QItemSelectionModel::NoUpdate);
    EXPECT_EQ(2, rows.representative().row());

    selection.setCurrentIndex(model.index(0, 0), QItemSelectionModel::NoUpdate);

    EXPECT_EQ(1, rows.representative().row());
}

TEST_F(RowSelectionTest, severalRowsAreFoundAgainAfterAReset) {
    select(0, 1);
    select(3, 3);
    QStringList before;
    for (const auto row : rows.rows()) {
        before.prepend(model.index(static_cast<int>(row), 0).data().toString());
    }
    rows.note();

    perform([](shell::Shell& console) {
        console.sort(shell::SortOrder{0, false});
        return true;
    });
    EXPECT_EQ(0U, rows.count());
    rows.restore();

    QStringList after;
    for (const auto row : rows.rows()) {
        after += model.index(static_cast<int>(row), 0).data().toString();
    }
    before.sort();
    after.sort();
    EXPECT_EQ(before, after);
}

TEST_F(RowSelectionTest, aSingleCopiedRowHasNoLineBreak) {
    desktop::copyRows(shell.table({0}, {0, 1}));

    const QMimeData& copied = *QGuiApplication::clipboard()->mimeData();
    EXPECT_FALSE(copied.text().contains(QLatin1Char('\n')));
    EXPECT_EQ(1, copied.text().count(QLatin1Char('\t')));
    EXPECT_TRUE(copied.hasHtml());
}

} // namespace
} // namespace desktoptest
