#include "tests/hosts/desktop/WindowFixture.h"

#include "hosts/desktop/list/ExportList.h"
#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/tree/DragData.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>
#include <QScrollBar>
#include <QStatusTipEvent>

namespace desktoptest {
namespace {

class Window : public WindowFixture {
protected:
    void answerForm(const QString& text) {
        whenAsked([text](QDialog& dialog) {
            type(dialog, 0, text);
            press(dialog, QStringLiteral("OK"));
        });
    }
    void createRegion(const QString& name) {
        show(QStringLiteral("Printers"));
        answerForm(name);
        choose(QStringLiteral("Create region"));
        // What was made is listed once the branch is read again.
        panes().tree().setFocus();
        window().actions().refresh->trigger();
        settle();
    }
    // Drags as the user does: drops the data of the list on the tree.
    void drag(const QString& row, const QString& target) {
        const std::unique_ptr<QMimeData> data(panes().listModel().mimeData({rowNamed(row)}));
        auto& model = *panes().tree().model();
        const auto index = static_cast<desktop::ScopeModel&>(model).indexOf(item(target));
        ASSERT_TRUE(model.canDropMimeData(data.get(), Qt::MoveAction, -1, -1, index));
        ASSERT_TRUE(model.dropMimeData(data.get(), Qt::MoveAction, -1, -1, index));
        settle();
    }
};

TEST_F(Window, everyModelKeepsTheRulesOfQtThroughAWholeSession) {
    open();
    const Tested tree(*panes().tree().model());
    const Tested list(panes().listModel());
    const Tested log(*window().activity().view().model());
    show(QStringLiteral("Printers/München"));
    window().actions().refresh->trigger();
    settle();
    show(QStringLiteral("Printers"));
    window().actions().back->trigger();
    settle();
    EXPECT_EQ(8, panes().listModel().rowCount());
}

TEST_F(Window, expandingReadsTheChildren) {
    open();
    const auto index = static_cast<desktop::ScopeModel&>(*panes().tree().model()).indexOf(item("Printers/München"));
    EXPECT_EQ(0, panes().tree().model()->rowCount(index));
    panes().tree().expand(index);
    settle();
    EXPECT_EQ(8, panes().tree().model()->rowCount(index));
    EXPECT_TRUE(panes().tree().isExpanded(index));
    EXPECT_TRUE(shell().tree().isOpen(item("Printers/München")));
    panes().tree().collapse(index);
    settle();
    EXPECT_FALSE(shell().tree().isOpen(item("Printers/München")));
}

TEST_F(Window, aRegionIsCreatedRenamedFilledAndDeleted) {
    open();
    createRegion(QStringLiteral("North"));
    ASSERT_TRUE(childrenOf("Printers").contains(QStringLiteral("North")));

    show(QStringLiteral("Printers/North"));
    ASSERT_TRUE(window().actions().rename->isEnabled());
    window().actions().rename->trigger();
    auto* const editor = panes().tree().findChild<QLineEdit*>();
    ASSERT_NE(nullptr, editor);
    editor->setText(QStringLiteral("Far North"));
    QTest::keyClick(editor, Qt::Key_Return);
    settle();
    ASSERT_TRUE(childrenOf("Printers").contains(QStringLiteral("Far North")));

    show(QStringLiteral("Printers/München"));
    drag(QStringLiteral("MUC-002"), QStringLiteral("Printers/Far North"));
    show(QStringLiteral("Printers/Far North"));
    EXPECT_EQ(QStringList{QStringLiteral("MUC-002")}, rows());
    show(QStringLiteral("Printers/München"));
    EXPECT_FALSE(rows().contains(QStringLiteral("MUC-002")));

    show(QStringLiteral("Printers/Far North"));
    QString said;
    const auto readBox = [&said](QDialog& box) {
        for (const auto* const label : box.findChildren<QLabel*>()) {
            said += label->text();
        }
    };
    whenAsked([](QDialog& question) { press(question, QStringLiteral("OK")); });
    whenAsked([&](QDialog& box) {
        readBox(box);
        press(box, QStringLiteral("OK"));
    });
    choose(QStringLiteral("Delete region"));
    EXPECT_TRUE(said.contains(QStringLiteral("Cannot delete as the region includes Printers"))) << said.toStdString();
    EXPECT_TRUE(childrenOf("Printers").contains(QStringLiteral("Far North")));

    drag(QStringLiteral("MUC-002"), QStringLiteral("Printers/München"));
    show(QStringLiteral("Printers/Far North"));
    whenAsked([](QDialog& question) { press(question, QStringLiteral("OK")); });
    choose(QStringLiteral("Delete region"));
    EXPECT_FALSE(childrenOf("Printers").contains(QStringLiteral("Far North")));
}

TEST_F(Window, aDeleteThatIsNotConfirmedIsNotDone) {
    open(QStringLiteral("Printers/Berlin/Warehouse"));
    whenAsked([](QDialog& question) { press(question, QStringLiteral("Cancel")); });
    choose(QStringLiteral("Delete region"));
    EXPECT_TRUE(childrenOf("Printers/Berlin").contains(QStringLiteral("Warehouse")));
}

TEST_F(Window, cutAndPasteMoveAPrinter) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-001"));
    ASSERT_TRUE(window().actions().cut->isEnabled());
    window().actions().cut->trigger();
    settle();
    show(QStringLiteral("Printers/Łódź"));
    ASSERT_TRUE(window().actions().paste->isEnabled());
    window().actions().paste->trigger();
    settle();
    EXPECT_TRUE(rows().contains(QStringLiteral("MUC-001")));
    EXPECT_FALSE(window().actions().paste->isEnabled());
}

TEST_F(Window, typingInTheFilterShowsOnlyRowsThatHoldIt) {
    open(QStringLiteral("Printers/München"));
    window().actions().filter->trigger();
    QTest::keyClicks(&panes().filter(), QStringLiteral("laserone"));
    settle();
    EXPECT_EQ((QStringList{"MUC-002", "MUC-005"}), rows());
    QTest::keyClick(&panes().filter(), Qt::Key_Escape);
    settle();
    EXPECT_EQ(8, rows().size());
}

TEST_F(Window, aFilterThatHidesEverythingSaysSo) {
    open(QStringLiteral("Printers/München"));
    QTest::keyClicks(&panes().filter(), QStringLiteral("nothing like it"));
    settle();
    EXPECT_EQ(0, panes().listModel().rowCount());
    EXPECT_TRUE(panes().emptyText().startsWith(QStringLiteral("The filter hides all of 8 rows")));
    EXPECT_EQ(panes().emptyText(), panes().list().accessibleDescription());
}

TEST_F(Window, aRowThatTheFilterHidesIsNoLongerSelected) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-001"));
    QTest::keyClicks(&panes().filter(), QStringLiteral("laserone"));
    settle();
    EXPECT_EQ(0, shell().selection().row);
}

TEST_F(Window, anotherListComesWithoutTheFilter) {
    open(QStringLiteral("Printers/München"));
    QTest::keyClicks(&panes().filter(), QStringLiteral("laserone"));
    settle();
    show(QStringLiteral("Printers"));
    EXPECT_EQ(QString(), panes().filter().text());
    EXPECT_EQ(3, panes().listModel().rowCount());
}

TEST_F(Window, aClickOnATitleSortsInNaturalOrder) {
    open(QStringLiteral("Printers/Łódź"));
    auto* const header = panes().list().header();
    const QPoint title(header->sectionViewportPosition(0) + 10, header->height() / 2);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    settle();
    EXPECT_EQ((QStringList{"LCJ-001", "LCJ-002", "LCJ-003", "LCJ-004"}), rows());
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
    settle();
    EXPECT_EQ((QStringList{"LCJ-004", "LCJ-003", "LCJ-002", "LCJ-001"}), rows());
    EXPECT_EQ(Qt::DescendingOrder, header->sortIndicatorOrder());
}

TEST_F(Window, aRefreshKeepsSelectionAndPlace) {
    open(QStringLiteral("Printers/München"));
    window().resize(700, 260);
    selectRow(QStringLiteral("MUC-005"));
    auto* const bar = panes().list().verticalScrollBar();
    ASSERT_GT(bar->maximum(), 0);
    bar->setValue(bar->maximum());
    const int place = bar->value();
    window().actions().refresh->trigger();
    settle();
    EXPECT_EQ(place, bar->value());
    EXPECT_EQ(QStringLiteral("MUC-005"), panes().list().currentIndex().siblingAtColumn(0).data().toString());
    EXPECT_TRUE(panes().list().selectionModel()->isSelected(panes().list().currentIndex()));
}

TEST_F(Window, aDoubleClickOnARowOpensItInTheTree) {
    open(QStringLiteral("Printers"));
    selectRow(QStringLiteral("München"));
    QTest::keyClick(&panes().list(), Qt::Key_Return);
    settle();
    EXPECT_EQ(item("Printers/München"), shell().selection().scope);
    EXPECT_EQ(QStringLiteral("München"), panes().tree().currentIndex().data().toString());
}

TEST_F(Window, backAndForwardGoThroughWhatWasShown) {
    open(QStringLiteral("Printers/München"));
    show(QStringLiteral("Printers/Berlin"));
    window().actions().back->trigger();
    settle();
    EXPECT_EQ(item("Printers/München"), shell().selection().scope);
    EXPECT_EQ(QStringLiteral("München"), panes().tree().currentIndex().data().toString());
    window().actions().forward->trigger();
    settle();
    EXPECT_EQ(item("Printers/Berlin"), shell().selection().scope);
    window().actions().up->trigger();
    settle();
    EXPECT_EQ(item("Printers"), shell().selection().scope);
}

TEST_F(Window, searchingTheTreeGoesToWhatItFinds) {
    open();
    panes().search().setText(QStringLiteral("warehouse"));
    QStringList said;
    panes().search().onMessage = [&](const QString& message) { said += message; };
    QTest::keyClick(&panes().search(), Qt::Key_Return);
    settle();
    EXPECT_TRUE(said.join(QString()).contains(QStringLiteral("No item read so far")));
    QTest::keyClick(&panes().search(), Qt::Key_Return);
    settle();
    EXPECT_EQ(item("Printers/Berlin/Warehouse"), shell().selection().scope);
    EXPECT_EQ(QStringLiteral("Warehouse"), panes().tree().currentIndex().data().toString());
}

TEST_F(Window, theListIsWrittenAsCsvJsonAndText) {
    open(QStringLiteral("Printers/Łódź"));
    const auto read = [&](const QString& name) {
        const QString path = folder.filePath(name);
        EXPECT_FALSE(desktop::writeList(shell().table(), path, desktop::listFormatOf(path)).has_value());
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        return file.readAll();
    };
    EXPECT_TRUE(read(QStringLiteral("a.csv")).startsWith("Printer Name,Model,Location,"));
    EXPECT_TRUE(read(QStringLiteral("a.json")).contains("\"LCJ-001\""));
    EXPECT_TRUE(read(QStringLiteral("a.txt")).contains("LCJ-004"));
}

TEST_F(Window, anExportThatCannotBeWrittenIsToldAndLeavesTheOldFile) {
    open(QStringLiteral("Printers"));
    const auto error =
        desktop::writeList(shell().table(), QStringLiteral("/nonexistent/a.csv"), desktop::ListFormat::csv);
    ASSERT_TRUE(error.has_value());
    EXPECT_TRUE(error->startsWith(QStringLiteral("The list could not be written to /nonexistent/a.csv: ")));
}

TEST_F(Window, menuEntriesTellTheStatusBarWhatTheyAreFor) {
    open(QStringLiteral("Printers/Berlin"));
    const auto menu = window().menus().make(shell().selection());
    QStringList entries;
    for (const QAction* const action : menu->actions()) {
        if (!action->isSeparator()) {
            entries += action->text() + QStringLiteral("|") + action->statusTip();
        }
    }
    EXPECT_EQ(QStringLiteral("Create region|To create a new region"), entries.value(0));
    EXPECT_TRUE(entries.contains(QStringLiteral("Delete region|To delete region")));
    EXPECT_TRUE(entries.contains(QStringLiteral("&Refresh|To read this from the server again")));
    EXPECT_EQ(&window(), menu->parentWidget());
}

TEST_F(Window, columnsAreRememberedForTheirList) {
    open(QStringLiteral("Printers/München"));
    panes().list().header()->resizeSection(1, 77);
    panes().list().columns().setHidden(2, true);
    panes().list().header()->moveSection(4, 0);
    show(QStringLiteral("Printers"));
    show(QStringLiteral("Printers/Łódź"));
    auto* const header = panes().list().header();
    EXPECT_EQ(77, header->sectionSize(1));
    EXPECT_TRUE(panes().list().columns().isHidden(2));
    EXPECT_EQ(0, header->visualIndex(4));
    window().actions().resetColumns->trigger();
    EXPECT_FALSE(panes().list().columns().isHidden(2));
    EXPECT_EQ(4, header->visualIndex(4));
    EXPECT_GT(header->sectionSize(1), 77);
}

TEST_F(Window, allColumnsAreInViewUntilTheyAreTouched) {
    open(QStringLiteral("Printers/München"));
    auto* const header = panes().list().header();
    const auto width = [this] { return panes().list().viewport()->width(); };
    ASSERT_GE(header->count(), 4);
    EXPECT_LE(header->length(), width());
    window().resize(window().width() - 120, window().height());
    settle();
    EXPECT_LE(header->length(), width());
    const int narrow = header->length();
    window().resize(window().width() + 300, window().height());
    settle();
    EXPECT_LE(header->length(), width());
    EXPECT_GT(header->length(), narrow);
    header->resizeSection(1, 900);
    window().resize(window().width() - 100, window().height());
    settle();
    EXPECT_EQ(900, header->sectionSize(1));
}

TEST_F(Window, theLastVisibleColumnStays) {
    open(QStringLiteral("Printers/München"));
    for (int column = 0; column < panes().listModel().columnCount(); ++column) {
        panes().list().columns().setHidden(column, true);
    }
    EXPECT_EQ(1, panes().listModel().columnCount() - panes().list().header()->hiddenSectionCount());
}

TEST_F(Window, theSelectedRowIsCopiedAsText) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-004"));
    window().actions().copyRows->trigger();
    EXPECT_TRUE(QGuiApplication::clipboard()->text().startsWith(QStringLiteral("MUC-004\tQuillmark Dot 24\t")));
}

TEST_F(Window, keysAloneLeadFromPaneToPane) {
    open(QStringLiteral("Printers/München"));
    window().activateWindow();
    panes().tree().setFocus();
    window().actions().nextPane->trigger();
    EXPECT_TRUE(panes().list().hasFocus());
    settle();
    EXPECT_NE(0, shell().selection().row);
    window().actions().nextPane->trigger();
    settle();
    EXPECT_TRUE(panes().tree().hasFocus());
    EXPECT_EQ(0, shell().selection().row);
    QTest::keyClick(&panes().tree(), Qt::Key_Up);
    settle();
    EXPECT_NE(item("Printers/München"), shell().selection().scope);
}

TEST_F(Window, whatCanBeUsedHasANameForAScreenReader) {
    open();
    window().activity().show();
    for (const auto* const view : window().findChildren<QAbstractItemView*>()) {
        EXPECT_FALSE(view->accessibleName().isEmpty()) << view->metaObject()->className();
    }
    for (const auto* const line : window().findChildren<QLineEdit*>()) {
        EXPECT_FALSE(line->accessibleName().isEmpty());
    }
    EXPECT_EQ(QAccessible::Tree, QAccessible::queryAccessibleInterface(&panes().tree())->role());
}

TEST_F(Window, longAndStrangeNamesDoNotMoveTheLayout) {
    open();
    const int width = panes().list().width();
    createRegion(QStringLiteral("<h1>markup</h1>"));
    show(QStringLiteral("Printers/<h1>markup<\\/h1>"));
    EXPECT_EQ(QStringLiteral("<h1>markup</h1> – Vantrel Manager"), window().windowTitle());
    EXPECT_EQ(width, panes().list().width());
    EXPECT_EQ(QSize(1000, 600), window().size());
}

TEST_F(Window, placeAndSplitterAreRemembered) {
    open();
    window().setGeometry(20, 30, 640, 480);
    window().close();
    EXPECT_EQ(QRect(20, 30, 640, 480), viewSettings->geometry({QRect(0, 0, 1920, 1080)}));
    EXPECT_FALSE(viewSettings->state(QStringLiteral("panes")).isEmpty());
}

TEST_F(Window, aSettingsFileOfGarbageIsSurvived) {
    QFile file(viewSettings->file());
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray(3'000, '\xff') + "[window]\ngeometry=@Rect(1 2)\npanes=@ByteArray(\\xff\\xff)\n");
    file.close();
    open();
    window().restorePlace();
    EXPECT_TRUE(window().isVisible());
    EXPECT_GE(window().width(), 400);
}

} // namespace
} // namespace desktoptest
