#include "hosts/desktop/list/ListModel.h"

#include "hosts/desktop/look/Text.h"
#include "tests/hosts/desktop/ModelFixture.h"

#include <QIcon>
#include <QMimeData>
#include <QSignalSpy>

#include <memory>

namespace desktoptest {
namespace {

using desktop::ListModel;

class ListModelTest : public ModelFixture {
protected:
    void show(console::ScopeId id) {
        perform([&](shell::Shell& console) { return console.select(id); });
    }
    QStringList names() const {
        QStringList names;
        for (int row = 0; row < model.rowCount(); ++row) {
            names += model.index(row, 0).data().toString();
        }
        return names;
    }

    ListModel model{operations, observers, icons};
    Tested tested{model};
};

TEST_F(ListModelTest, hasNothingBeforeTheConsoleStarts) {
    EXPECT_EQ(0, model.rowCount());
    EXPECT_EQ(0, model.columnCount());
}

TEST_F(ListModelTest, showsColumnsAndRowsOfTheSelectedItem) {
    start();
    show(a());
    EXPECT_EQ(4, model.columnCount());
    EXPECT_EQ(QStringLiteral("Number"), model.headerData(1, Qt::Horizontal, Qt::DisplayRole).toString());
    EXPECT_EQ((QStringList{"A2", "A10", "a1", "a2"}), names());
    EXPECT_EQ(QStringLiteral("30"), model.index(2, 1).data().toString());
}

TEST_F(ListModelTest, marksASevereStateAndSaysItInWords) {
    using console::Severity;
    const std::span leaves = std::span(estate.below["a"]).last(2);
    leaves[0].state = console::RowState{Severity::error, {u"Error: No Paper", u"Idle"}};
    leaves[1].state = console::RowState{Severity::none, {u"OK", u"Idle"}};
    start();
    show(a());
    const auto rowOf = [&](const wire::WideString& name) {
        return model.index(static_cast<int>(names().indexOf(desktop::toQString(name))), 0);
    };
    const auto pictureOf = [](const QModelIndex& row) {
        return row.data(Qt::DecorationRole).value<QIcon>().pixmap(QSize(16, 16)).toImage();
    };
    const QModelIndex failing = rowOf(leaves[0].name);
    const QModelIndex well = rowOf(leaves[1].name);

    EXPECT_EQ(QStringLiteral("Error: No Paper, Idle"), failing.data(Qt::AccessibleDescriptionRole).toString());
    EXPECT_TRUE(failing.data(Qt::ToolTipRole).toString().endsWith(QStringLiteral("\nError: No Paper, Idle")));
    EXPECT_EQ(QStringLiteral("OK, Idle"), well.data(Qt::AccessibleDescriptionRole).toString());
    EXPECT_NE(pictureOf(failing), pictureOf(well));
}

TEST_F(ListModelTest, rowsThatStayKeepTheirPlaceInViewsAcrossARefresh) {
    start();
    show(a());
    const QPersistentModelIndex kept(model.index(3, 0));
    QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
    estate.below["a"].erase(estate.below["a"].begin());
    perform(&shell::Shell::refresh);
    EXPECT_EQ((QStringList{"A2", "a1", "a2"}), names());
    EXPECT_EQ(2, kept.row());
    EXPECT_EQ(0, resets.count());
}

TEST_F(ListModelTest, aRowThatIsRedrawnChangesAlone) {
    start();
    show(a());
    QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
    const auto row = shell.pane().row(2).node;
    estate.commands[1] = [&](shelltest::FolderNode&, console::CommandOrigin) {
        auto& leaf = dynamic_cast<shelltest::LeafNode&>(*row);
        leaf.entry.number = u"31";
        leaf.redrawRow();
    };
    perform([&](shell::Shell& console) { return console.invoke(1, console.selection()); });
    ASSERT_EQ(1, changes.count());
    EXPECT_EQ(2, changes.front().at(0).toModelIndex().row());
    EXPECT_EQ(2, changes.front().at(1).toModelIndex().row());
    EXPECT_EQ(QStringLiteral("31"), model.index(2, 1).data().toString());
}

TEST_F(ListModelTest, sortingAndFilteringResetTheRows) {
    start();
    show(a());
    perform([](shell::Shell& console) { return console.clickColumn(1); });
    EXPECT_EQ((QStringList{"A2", "A10", "a2", "a1"}), names());
    perform([](shell::Shell& console) {
        console.filter(u"a1");
        return true;
    });
    EXPECT_EQ((QStringList{"A10", "a1"}), names());
}

TEST_F(ListModelTest, rowsAreLeaves) {
    start();
    show(a());
    EXPECT_TRUE(model.index(0, 0).flags().testFlag(Qt::ItemNeverHasChildren));
    EXPECT_EQ(0, model.rowCount(model.index(0, 0)));
}

TEST_F(ListModelTest, aRowKnowsTheScopeItemThatItStandsFor) {
    start();
    EXPECT_EQ(a(), model.scopeOf(model.index(0, 0)));
    show(a());
    EXPECT_EQ(child(a(), u"A2"), model.scopeOf(model.index(0, 0)));
}

TEST_F(ListModelTest, aRowIsDroppedOnAnotherThatTakesIt) {
    start();
    show(a());
    int pasted = 0;
    estate.pasted = [&](auto&, auto&) { ++pasted; };
    const std::unique_ptr<QMimeData> data(model.mimeData({model.index(2, 0)}));
    EXPECT_EQ(QStringLiteral("a1"), data->text());
    EXPECT_TRUE(model.canDropMimeData(data.get(), Qt::MoveAction, -1, -1, model.index(0, 0)));
    EXPECT_FALSE(model.canDropMimeData(data.get(), Qt::MoveAction, -1, -1, model.index(2, 0)));
    EXPECT_TRUE(model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, model.index(0, 0)));
    settle();
    EXPECT_EQ(1, pasted);
}

TEST_F(ListModelTest, onlyTheFirstCellOfTheSelectedRowCanBeRenamed) {
    start();
    show(a());
    const auto folder = model.index(0, 0);
    perform([&](shell::Shell& console) { return console.selectRow(model.idOf(folder)); });
    EXPECT_TRUE(folder.flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(model.index(0, 1).flags().testFlag(Qt::ItemIsEditable));
    EXPECT_FALSE(model.index(1, 0).flags().testFlag(Qt::ItemIsEditable));
}

TEST_F(ListModelTest, aCellWithALineBreakIsOneLine) {
    estate.below["b"] = {{.key = "m", .name = u"one\r\ntwo", .leaf = true}};
    start();
    show(b());
    EXPECT_EQ(QStringLiteral("one␍␊two"), model.index(0, 0).data().toString());
    EXPECT_EQ(QStringLiteral("one\r\ntwo"), model.index(0, 0).data(Qt::EditRole).toString());
}

} // namespace
} // namespace desktoptest
