#include "hosts/desktop/window/Moves.h"

#include "hosts/desktop/look/Text.h"
#include "tests/hosts/desktop/WindowFixture.h"

#include <QLabel>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>

namespace desktoptest {
namespace {

// Moving regions and printers with the mouse and by cut and paste.
class MovesTest : public WindowFixture {
protected:
    desktop::UndoBar& bar() { return panes().undoBar(); }
    desktop::ScopeModel& tree() { return static_cast<desktop::ScopeModel&>(*panes().tree().model()); }
    QTimer& timer() { return *bar().findChild<QTimer*>(QString(), Qt::FindDirectChildrenOnly); }
    // Drops on the tree what was dragged from the tree or the list.
    void drop(QMimeData* dragged, const QString& target) {
        const std::unique_ptr<QMimeData> data(dragged);
        const auto index = tree().indexOf(item(target));
        ASSERT_TRUE(tree().canDropMimeData(data.get(), Qt::MoveAction, -1, -1, index));
        ASSERT_TRUE(tree().dropMimeData(data.get(), Qt::MoveAction, -1, -1, index));
        settle();
    }
    void dragRow(const QString& row, const QString& target) {
        drop(panes().listModel().mimeData({rowNamed(row)}), target);
    }
    void dragItem(const QString& path, const QString& target) {
        drop(tree().mimeData({tree().indexOf(item(path))}), target);
    }
    QString selectedRow() const {
        const auto place = shell().pane().indexOf(shell().selection().row);
        return place ? desktop::toQString(shell().pane().cell(*place, 0)) : QString();
    }
    void pressUndo() {
        press(bar(), QStringLiteral("Undo"));
        settle();
    }
    // The next message says what was not accepted.
    void expectRefusal() {
        whenAsked([](QDialog& box) {
            EXPECT_EQ(QStringLiteral("Not Changed"), box.windowTitle());
            box.reject();
        });
    }
};

TEST_F(MovesTest, aDroppedPrinterIsSelectedInItsNewPlaceAndCanBeMovedBack) {
    open(QStringLiteral("Printers/München"));

    dragRow(QStringLiteral("MUC-001"), QStringLiteral("Printers/Łódź"));

    EXPECT_EQ(item("Printers/Łódź"), shell().selection().scope);
    EXPECT_EQ(QStringLiteral("MUC-001"), selectedRow());
    EXPECT_TRUE(bar().isVisible());
    EXPECT_EQ(QStringLiteral("Moved 'MUC-001' to 'Łódź'."), bar().said());

    pressUndo();

    EXPECT_EQ(item("Printers/München"), shell().selection().scope);
    EXPECT_EQ(QStringLiteral("MUC-001"), selectedRow());
    EXPECT_FALSE(childrenOf("Printers/Łódź").contains(QStringLiteral("MUC-001")));
    EXPECT_FALSE(bar().isVisible());
    EXPECT_EQ(QStringLiteral("Moved 'MUC-001' back to 'München'."), window().statusBar()->currentMessage());
}

TEST_F(MovesTest, aMovedRegionLeavesItsOldPlaceInTheTreeAtOnce) {
    open(QStringLiteral("Printers/Berlin"));
    show(QStringLiteral("Printers/München"));
    ASSERT_TRUE(childrenOf("Printers/Berlin").contains(QStringLiteral("Warehouse")));

    dragItem(QStringLiteral("Printers/Berlin/Warehouse"), QStringLiteral("Printers/München"));

    EXPECT_FALSE(childrenOf("Printers/Berlin").contains(QStringLiteral("Warehouse")));
    EXPECT_TRUE(childrenOf("Printers/München").contains(QStringLiteral("Warehouse")));
    EXPECT_EQ(QStringLiteral("Warehouse"), selectedRow());

    pressUndo();

    EXPECT_TRUE(childrenOf("Printers/Berlin").contains(QStringLiteral("Warehouse")));
    EXPECT_FALSE(childrenOf("Printers/München").contains(QStringLiteral("Warehouse")));
}

TEST_F(MovesTest, aRegionIsMovedToTheTopAndBack) {
    open(QStringLiteral("Printers/Berlin"));

    dragRow(QStringLiteral("Warehouse"), QStringLiteral("Printers"));

    EXPECT_TRUE(childrenOf("Printers").contains(QStringLiteral("Warehouse")));
    EXPECT_FALSE(childrenOf("Printers/Berlin").contains(QStringLiteral("Warehouse")));

    pressUndo();

    EXPECT_FALSE(childrenOf("Printers").contains(QStringLiteral("Warehouse")));
    EXPECT_EQ(item("Printers/Berlin"), shell().selection().scope);
}

TEST_F(MovesTest, aMoveThatIsRefusedIsToldAndNotOfferedToBeUndone) {
    open(QStringLiteral("Printers/Berlin"));
    expectRefusal();

    dragItem(QStringLiteral("Printers/Berlin"), QStringLiteral("Printers/Berlin/Warehouse"));

    EXPECT_FALSE(bar().isVisible());
    EXPECT_FALSE(window().actions().undo->isEnabled());
    EXPECT_EQ(item("Printers/Berlin"), shell().selection().scope);
    EXPECT_TRUE(childrenOf("Printers").contains(QStringLiteral("Berlin")));
    EXPECT_TRUE(childrenOf("Printers/Berlin").contains(QStringLiteral("Warehouse")));
}

TEST_F(MovesTest, aPasteThatIsRefusedLeavesWhatIsCutReadyToBePastedElsewhere) {
    open(QStringLiteral("Printers/Berlin"));
    window().actions().cut->trigger();
    settle();
    show(QStringLiteral("Printers/Berlin/Warehouse"));
    expectRefusal();

    window().actions().paste->trigger();
    settle();

    ASSERT_NE(nullptr, shell().cutNode());
    show(QStringLiteral("Printers/Łódź"));
    EXPECT_TRUE(window().actions().paste->isEnabled());
    window().actions().paste->trigger();
    settle();
    EXPECT_TRUE(childrenOf("Printers/Łódź").contains(QStringLiteral("Berlin")));
    EXPECT_FALSE(childrenOf("Printers").contains(QStringLiteral("Berlin")));
    EXPECT_EQ(nullptr, shell().cutNode());
    EXPECT_EQ(QStringLiteral("Moved 'Berlin' to 'Łódź'."), bar().said());
}

TEST_F(MovesTest, whatIsPastedOnARowIsShownInThatRow) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-001"));
    window().actions().cut->trigger();
    settle();
    show(QStringLiteral("Printers"));
    selectRow(QStringLiteral("Łódź"));

    window().actions().paste->trigger();
    settle();

    EXPECT_EQ(item("Printers/Łódź"), shell().selection().scope);
    EXPECT_EQ(QStringLiteral("MUC-001"), selectedRow());
}

TEST_F(MovesTest, theOfferEndsByItselfAfterTenSecondsUnlessItIsAboutToBeTaken) {
    open(QStringLiteral("Printers/München"));
    dragRow(QStringLiteral("MUC-001"), QStringLiteral("Printers/Łódź"));
    ASSERT_TRUE(timer().isActive());
    EXPECT_EQ(10'000, timer().interval());
    auto& button = *bar().findChild<QPushButton*>();
    window().activateWindow();
    button.setFocus();
    ASSERT_TRUE(button.hasFocus());

    timer().start(0);
    settle();
    EXPECT_TRUE(bar().isVisible());
    panes().list().setFocus();
    timer().start(0);
    ASSERT_TRUE(waitFor([&] { return !bar().isVisible(); }));

    EXPECT_FALSE(window().actions().undo->isEnabled());
}

TEST_F(MovesTest, undoHasAKeyAndAnAccessKeyOfItsOwn) {
    open(QStringLiteral("Printers/München"));
    EXPECT_FALSE(window().actions().undo->isEnabled());
    dragRow(QStringLiteral("MUC-001"), QStringLiteral("Printers/Łódź"));
    ASSERT_TRUE(window().actions().undo->isEnabled());
    const QString access = bar().findChild<QPushButton*>()->text().section(QLatin1Char('&'), 1).left(1);
    for (const QAction* const menu : window().menuBar()->actions()) {
        EXPECT_NE(access, menu->text().section(QLatin1Char('&'), 1).left(1));
    }
    EXPECT_EQ(QKeySequence(Qt::CTRL | Qt::Key_Z), window().actions().undo->shortcut());

    window().actions().undo->trigger();
    settle();

    EXPECT_TRUE(rows().contains(QStringLiteral("MUC-001")));
    EXPECT_EQ(item("Printers/München"), shell().selection().scope);
}

TEST_F(MovesTest, whatHasBeenDeletedMeanwhileIsNotMovedBack) {
    open(QStringLiteral("Printers/München"));
    dragRow(QStringLiteral("MUC-001"), QStringLiteral("Printers/Łódź"));
    whenAsked([](QDialog& question) { press(question, QStringLiteral("OK")); });
    window().actions().remove->trigger();
    settle();
    ASSERT_FALSE(childrenOf("Printers/Łódź").contains(QStringLiteral("MUC-001")));

    window().actions().undo->trigger();
    settle();

    EXPECT_EQ(QStringLiteral("'MUC-001' can't be moved back any more: something else has changed."),
              window().statusBar()->currentMessage());
}

} // namespace
} // namespace desktoptest
