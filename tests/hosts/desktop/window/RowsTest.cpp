#include "hosts/desktop/list/ListHeader.h"
#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/look/TextDelegate.h"
#include "tests/hosts/desktop/WindowFixture.h"

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QMenu>
#include <QMimeData>

namespace desktoptest {
namespace {

// What one does with the rows of the list, by keyboard and mouse.
class Rows : public WindowFixture {
protected:
    desktop::ListView& list() { return panes().list(); }
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&list(), key, modifiers);
        settle();
    }
    void click(const QString& row, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, modifiers, list().visualRect(rowNamed(row)).center());
        settle();
    }
    void makePlan(const QString& name) {
        show(QStringLiteral("Rules/Price Plans"));
        whenAsked([name](QDialog& dialog) {
            type(dialog, 0, name);
            press(dialog, QStringLiteral("OK"));
        });
        choose(QStringLiteral("New Price Plan..."));
    }
    QStringList selected() {
        QStringList names;
        for (const auto row : list().selectedRows().rows()) {
            names += rows().at(static_cast<int>(row));
        }
        return names;
    }
    QStringList entries() {
        QStringList texts;
        const auto menu = window().menus().make(shell().selection());
        for (const QAction* const action : menu->actions()) {
            if (!action->isSeparator()) {
                texts += action->text().remove(QLatin1Char('&'));
            }
        }
        return texts;
    }
    static const QMimeData& clipboard() { return *QGuiApplication::clipboard()->mimeData(); }
};

TEST_F(Rows, enterOnARowThatLeadsNowhereOpensItsDialog) {
    open(QStringLiteral("Rules/Price Plans"));
    makePlan(QStringLiteral("Night"));
    selectRow(QStringLiteral("Night"));
    QString title;
    whenAsked([&](QDialog& dialog) {
        title = dialog.windowTitle();
        press(dialog, QStringLiteral("Cancel"));
    });

    key(Qt::Key_Return);

    EXPECT_FALSE(title.isEmpty());
    EXPECT_EQ(QStringList{QStringLiteral("Night")}, selected());
}

TEST_F(Rows, aDoubleClickOnARowThatLeadsNowhereOpensItsDialog) {
    open(QStringLiteral("Rules/Price Plans"));
    makePlan(QStringLiteral("Night"));
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("Late"));
        press(dialog, QStringLiteral("OK"));
    });
    const QPoint place = list().visualRect(rowNamed(QStringLiteral("Night"))).center();

    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place);
    settle();

    EXPECT_TRUE(rows().contains(QStringLiteral("Late")));
}

TEST_F(Rows, aDoubleClickOnARowThatStandsForAnItemOfTheTreeGoesThere) {
    open(QStringLiteral("Printers"));
    const QPoint place = list().visualRect(rowNamed(QStringLiteral("Berlin"))).center();

    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(list().viewport(), Qt::LeftButton, {}, place);
    settle();

    EXPECT_EQ(item("Printers/Berlin"), shell().selection().scope);
}

TEST_F(Rows, deleteAsksTheQuestionOfTheEntryThatRemoves) {
    open(QStringLiteral("Rules/Price Plans"));
    makePlan(QStringLiteral("Night"));
    selectRow(QStringLiteral("Night"));
    whenAsked([](QDialog& question) { press(question, QStringLiteral("Cancel")); });
    window().actions().remove->trigger();
    settle();
    ASSERT_TRUE(rows().contains(QStringLiteral("Night")));
    whenAsked([](QDialog& question) { press(question, QStringLiteral("OK")); });

    window().actions().remove->trigger();
    settle();

    EXPECT_FALSE(rows().contains(QStringLiteral("Night")));
}

TEST_F(Rows, deleteIsForWhatHasAnEntryThatRemoves) {
    open(QStringLiteral("Printers/Berlin"));
    EXPECT_TRUE(window().actions().remove->isEnabled());
    EXPECT_EQ(QKeySequence(Qt::Key_Delete), window().actions().remove->shortcut());

    show(QStringLiteral("Printers"));

    EXPECT_FALSE(window().actions().remove->isEnabled());
    EXPECT_EQ(item("Printers"), shell().selection().scope);
}

TEST_F(Rows, shiftAndControlSelectSeveralRowsAndControlAAll) {
    open(QStringLiteral("Printers/Łódź"));
    click(QStringLiteral("LCJ-001"));
    click(QStringLiteral("LCJ-003"), Qt::ShiftModifier);
    EXPECT_EQ((QStringList{"LCJ-001", "LCJ-002", "LCJ-003"}), selected());
    click(QStringLiteral("LCJ-002"), Qt::ControlModifier);
    EXPECT_EQ((QStringList{"LCJ-001", "LCJ-003"}), selected());
    click(QStringLiteral("LCJ-004"));
    EXPECT_EQ(QStringList{QStringLiteral("LCJ-004")}, selected());

    window().actions().selectAll->trigger();
    settle();

    EXPECT_EQ(4, selected().size());
    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::Key_A), window().actions().selectAll->shortcut());
}

TEST_F(Rows, withSeveralRowsNothingIsOfferedThatIsForASingleOne) {
    open(QStringLiteral("Printers/Łódź"));
    click(QStringLiteral("LCJ-001"));
    ASSERT_TRUE(window().actions().cut->isEnabled());

    click(QStringLiteral("LCJ-002"), Qt::ControlModifier);

    EXPECT_FALSE(window().actions().cut->isEnabled());
    EXPECT_FALSE(window().actions().paste->isEnabled());
    EXPECT_FALSE(window().actions().remove->isEnabled());
    EXPECT_FALSE(window().actions().rename->isEnabled());
    EXPECT_EQ((QStringList{"Copy", "Copy Cell", "Export Selected Rows...", "Refresh", "Export List..."}), entries());
    EXPECT_EQ(nullptr, panes().listModel().mimeData(list().selectionModel()->selectedIndexes()));
    key(Qt::Key_Return);
    EXPECT_EQ(item("Printers/Łódź"), shell().selection().scope);
}

TEST_F(Rows, aClickBesideTheRowsLeavesTheListItself) {
    open(QStringLiteral("Printers/Łódź"));
    click(QStringLiteral("LCJ-001"));

    QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, {20, list().viewport()->height() - 5});
    settle();

    EXPECT_TRUE(selected().isEmpty());
    EXPECT_EQ(0, shell().selection().row);
}

TEST_F(Rows, severalSelectedRowsStaySelectedWhenTheListIsSortedFilteredAndRefreshed) {
    open(QStringLiteral("Printers/Łódź"));
    click(QStringLiteral("LCJ-001"));
    click(QStringLiteral("LCJ-003"), Qt::ControlModifier);
    click(QStringLiteral("LCJ-004"), Qt::ControlModifier);
    session().operations().perform([](shell::Shell& console) { return console.clickColumn(0); });
    session().operations().perform([](shell::Shell& console) { return console.clickColumn(0); });
    settle();
    EXPECT_EQ((QStringList{"LCJ-004", "LCJ-003", "LCJ-001"}), selected());

    session().operations().perform(&shell::Shell::refreshList);
    settle();
    EXPECT_EQ((QStringList{"LCJ-004", "LCJ-003", "LCJ-001"}), selected());

    QTest::keyClicks(&panes().filter(), QStringLiteral("003 or 004"));
    panes().filter().setText(QStringLiteral("-001"));
    settle();
    EXPECT_EQ((QStringList{"LCJ-004", "LCJ-003"}), selected());
}

TEST_F(Rows, copyTakesTheSelectedRowsAsLinesAndAsATable) {
    open(QStringLiteral("Printers/Łódź"));
    list().header()->moveSection(list().header()->visualIndex(5), 0);
    for (const int hidden : {2, 3, 4}) {
        list().columns().setHidden(hidden, true);
    }
    click(QStringLiteral("LCJ-002"));
    click(QStringLiteral("LCJ-001"), Qt::ControlModifier);

    window().actions().copyRows->trigger();

    const auto cell = [&](const char* row, int column) {
        return rowNamed(QString::fromUtf8(row)).siblingAtColumn(column).data(Qt::EditRole).toString();
    };
    EXPECT_EQ(QStringLiteral("%1\tLCJ-001\t%2\n%3\tLCJ-002\t%4\n")
                  .arg(cell("LCJ-001", 5), cell("LCJ-001", 1), cell("LCJ-002", 5), cell("LCJ-002", 1)),
              clipboard().text());
    EXPECT_TRUE(clipboard().html().startsWith(
        QStringLiteral("<table><tr><th>Jobs In Queue</th><th>Printer Name</th><th>Model</th></tr>")));
    EXPECT_EQ(3, clipboard().html().count(QStringLiteral("<tr>")));
}

TEST_F(Rows, theCellThatWasClickedIsCopiedAlone) {
    open(QStringLiteral("Printers/München"));
    const auto cell = rowNamed(QStringLiteral("MUC-004")).siblingAtColumn(1);
    const QPoint place = list().visualRect(cell).center();
    list().onMenu = [](const shell::Target&, const QPoint&) {};
    QContextMenuEvent asked(QContextMenuEvent::Mouse, place, list().viewport()->mapToGlobal(place));
    QCoreApplication::sendEvent(list().viewport(), &asked);
    settle();

    window().actions().copyCell->trigger();

    EXPECT_EQ(cell.data().toString(), clipboard().text());
    EXPECT_FALSE(clipboard().hasHtml());
}

TEST_F(Rows, copyingLeavesWhatIsCutReadyToBePasted) {
    open(QStringLiteral("Printers/München"));
    click(QStringLiteral("MUC-001"));
    window().actions().cut->trigger();
    settle();
    click(QStringLiteral("MUC-002"));
    window().actions().copyRows->trigger();

    show(QStringLiteral("Printers/Łódź"));
    window().actions().paste->trigger();
    settle();

    EXPECT_TRUE(rows().contains(QStringLiteral("MUC-001")));
    EXPECT_TRUE(clipboard().text().startsWith(QStringLiteral("MUC-002")));
}

TEST_F(Rows, whatIsCutIsFadedAndSaidToBeCutInListAndTreeUntilEscape) {
    open(QStringLiteral("Printers/München"));
    click(QStringLiteral("MUC-001"));
    window().actions().cut->trigger();
    settle();
    const auto inList = rowNamed(QStringLiteral("MUC-001"));
    auto& treeModel = static_cast<desktop::ScopeModel&>(*panes().tree().model());
    const auto inTree = treeModel.indexOf(item("Printers/München/MUC-001"));
    for (const auto& index : {inList, inTree}) {
        EXPECT_TRUE(index.data(desktop::TextDelegate::cutRole).toBool());
        EXPECT_TRUE(index.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Cut: paste it")));
        EXPECT_TRUE(index.data(Qt::AccessibleDescriptionRole)
                        .toString()
                        .endsWith(QStringLiteral("Cut: paste it where it belongs, or press Esc")));
    }
    EXPECT_FALSE(rowNamed(QStringLiteral("MUC-002")).data(desktop::TextDelegate::cutRole).toBool());
    const QImage faded = list().viewport()->grab(list().visualRect(inList)).toImage();

    key(Qt::Key_Escape);

    EXPECT_FALSE(inList.data(desktop::TextDelegate::cutRole).toBool());
    EXPECT_FALSE(inTree.data(desktop::TextDelegate::cutRole).toBool());
    EXPECT_FALSE(inList.data(Qt::ToolTipRole).toString().contains(QStringLiteral("Cut:")));
    EXPECT_NE(faded, list().viewport()->grab(list().visualRect(inList)).toImage());
}

TEST_F(Rows, theMarkOfACutStaysAcrossARefreshAndEndsWithThePaste) {
    open(QStringLiteral("Printers/München"));
    click(QStringLiteral("MUC-001"));
    window().actions().cut->trigger();
    settle();
    session().operations().perform(&shell::Shell::refreshList);
    settle();
    EXPECT_TRUE(rowNamed(QStringLiteral("MUC-001")).data(desktop::TextDelegate::cutRole).toBool());

    show(QStringLiteral("Printers/Łódź"));
    window().actions().paste->trigger();
    settle();

    EXPECT_FALSE(rowNamed(QStringLiteral("MUC-001")).data(desktop::TextDelegate::cutRole).toBool());
}

TEST_F(Rows, theThirdClickOnATitleBringsTheNaturalOrderBackAndAnOrderIsRemembered) {
    open(QStringLiteral("Printers/Łódź"));
    auto* const header = list().header();
    const auto clickTitle = [&](int column) {
        const QPoint title(header->sectionViewportPosition(column) + 10, header->height() / 2);
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, title);
        settle();
    };
    const auto natural = rows();
    clickTitle(1);
    clickTitle(1);
    EXPECT_EQ((shell::SortOrder{1, false}), viewSettings->sortOrders().at("class PrinterRegionNode"));
    EXPECT_EQ(1, header->sortIndicatorSection());

    clickTitle(1);

    EXPECT_EQ(natural, rows());
    EXPECT_EQ(-1, header->sortIndicatorSection());
    EXPECT_TRUE(viewSettings->sortOrders().empty());
}

TEST_F(Rows, aRememberedOrderIsThatOfTheNextStart) {
    viewSettings->setSortOrder("class PrinterRegionNode", shell::SortOrder{0, false});

    open(QStringLiteral("Printers/Łódź"));

    EXPECT_EQ((QStringList{"LCJ-004", "LCJ-003", "LCJ-002", "LCJ-001"}), rows());
    EXPECT_EQ(0, list().header()->sortIndicatorSection());
}

TEST_F(Rows, numbersAndTheirTitlesAreAlignedToTheRightBesideTheTextsBeforeThem) {
    open(QStringLiteral("Printers/Łódź"));
    const auto isRight = [](const QVariant& alignment) {
        return (static_cast<unsigned>(alignment.toInt()) & Qt::AlignRight) != 0;
    };
    auto& model = panes().listModel();

    EXPECT_TRUE(isRight(model.index(0, 5).data(Qt::TextAlignmentRole)));
    EXPECT_TRUE(isRight(model.headerData(5, Qt::Horizontal, Qt::TextAlignmentRole)));
    for (const int text : {0, 1, 2, 3, 4}) {
        EXPECT_FALSE(isRight(model.index(0, text).data(Qt::TextAlignmentRole))) << text;
        EXPECT_FALSE(isRight(model.headerData(text, Qt::Horizontal, Qt::TextAlignmentRole))) << text;
    }
    EXPECT_EQ(list().viewport()->width(), list().header()->length());
    EXPECT_LT(list().header()->sectionSize(5), list().header()->sectionSizeHint(5) + 40);
}

TEST_F(Rows, aTitleThatDoesNotFitKeepsItsBeginning) {
    open(QStringLiteral("Printers/Łódź"));
    auto& header = static_cast<desktop::ListHeader&>(*list().header());
    EXPECT_EQ(QStringLiteral("Jobs In Queue"), header.shownTitle(5));

    header.resizeSection(5, header.sectionSizeHint(5) / 2);

    EXPECT_TRUE(header.shownTitle(5).startsWith(QStringLiteral("Jo")));
    EXPECT_TRUE(header.shownTitle(5).endsWith(QChar(0x2026)));
}

} // namespace
} // namespace desktoptest
