#include "tests/hosts/desktop/WindowFixture.h"

#include "hosts/desktop/look/Text.h"

#include <QLineEdit>
#include <QMenu>

#include <algorithm>

namespace desktoptest {
namespace {

// Which row is selected after something was done with one.
class Selection : public WindowFixture {
protected:
    QString selected() {
        const auto place = shell().pane().indexOf(shell().selection().row);
        return place ? panes().listModel().index(static_cast<int>(*place), 0).data().toString() : QString();
    }
    // An entry of the selection's menu.
    QString entry(int place) { return window().menus().make(shell().selection())->actions().at(place)->text(); }
    void makePlan(const QString& name) {
        whenAsked([name](QDialog& dialog) {
            type(dialog, 0, name);
            press(dialog, QStringLiteral("OK"));
        });
        window().panes().tree().setFocus();
        show(QStringLiteral("Rules/Price Plans"));
        choose(QStringLiteral("New Price Plan..."));
    }
};

TEST_F(Selection, aNewRowIsTheSelectedOne) {
    open(QStringLiteral("Rules/Price Plans"));

    makePlan(QStringLiteral("Night"));

    EXPECT_EQ(QStringLiteral("Night"), selected());
}

TEST_F(Selection, anEditedRowStaysSelected) {
    open(QStringLiteral("Rules/Price Plans"));
    makePlan(QStringLiteral("Night"));
    selectRow(QStringLiteral("Night"));
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("Late"));
        press(dialog, QStringLiteral("OK"));
    });

    choose(entry(0));

    EXPECT_EQ(QStringLiteral("Late"), selected());
}

TEST_F(Selection, aRowWhoseDialogIsCancelledStaysSelected) {
    open(QStringLiteral("Rules/Price Plans"));
    makePlan(QStringLiteral("Night"));
    selectRow(QStringLiteral("Night"));
    whenAsked([](QDialog& dialog) { press(dialog, QStringLiteral("Cancel")); });

    choose(entry(0));

    EXPECT_EQ(QStringLiteral("Night"), selected());
}

TEST_F(Selection, theKeyboardGoesToTheNewRow) {
    open();
    panes().tree().setFocus(Qt::OtherFocusReason);
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("Berlin"));
        press(dialog, QStringLiteral("OK"));
    });
    whenAsked([](QDialog& box) { press(box, QStringLiteral("Open again with what you typed")); });
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("Nord"));
        press(dialog, QStringLiteral("OK"));
    });

    choose(QStringLiteral("Create region"));

    EXPECT_EQ(QStringLiteral("Nord"), selected());
    EXPECT_EQ(&panes().list(), window().focusWidget());
}

TEST_F(Selection, aRemovedRowHandsOnToItsNeighbour) {
    open(QStringLiteral("Rules/Price Plans"));
    makePlan(QStringLiteral("Zz 1"));
    makePlan(QStringLiteral("Zz 2"));
    makePlan(QStringLiteral("Zz 3"));
    selectRow(QStringLiteral("Zz 2"));
    whenAsked([](QDialog& question) { press(question, QStringLiteral("OK")); });

    choose(entry(1));

    EXPECT_FALSE(rows().contains(QStringLiteral("Zz 2")));
    EXPECT_EQ(QStringLiteral("Zz 3"), selected());
}

TEST_F(Selection, aRowThatIsRenamedInItsPlaceStaysSelected) {
    open(QStringLiteral("Printers"));
    selectRow(QStringLiteral("Berlin"));
    panes().list().renameCurrent();
    auto* const editor = panes().list().findChild<QLineEdit*>();
    ASSERT_NE(nullptr, editor);
    editor->setText(QStringLiteral("Zzz"));

    QTest::keyClick(editor, Qt::Key_Return);
    settle();

    EXPECT_EQ(QStringLiteral("Zzz"), selected());
    EXPECT_EQ(QStringLiteral("Zzz"), panes().list().currentIndex().siblingAtColumn(0).data().toString());
}

TEST_F(Selection, aSingleRowIsSelectedByAnArrowKey) {
    open(QStringLiteral("Printers"));
    QTest::keyClicks(&panes().filter(), QStringLiteral("Berlin"));
    settle();
    ASSERT_EQ(1, rows().size());
    panes().list().setFocus(Qt::OtherFocusReason);
    panes().list().setCurrentIndex(panes().listModel().index(0, 0));
    settle();
    session().operations().perform([](shell::Shell& console) { return console.selectRow(0); });

    QTest::keyClick(&panes().list(), Qt::Key_Down);
    settle();

    EXPECT_EQ(QStringLiteral("Berlin"), selected());
}

TEST_F(Selection, shiftF10OpensTheMenuOfTreeAndList) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-001"));
    std::vector<shell::Target> asked;
    const auto note = [&](const shell::Target& target, const QPoint&) { asked.push_back(target); };
    panes().list().onMenu = note;
    panes().tree().onMenu = note;

    QTest::keyClick(&panes().list(), Qt::Key_F10, Qt::ShiftModifier);
    const auto row = shell().selection();
    QTest::keyClick(&panes().tree(), Qt::Key_F10, Qt::ShiftModifier);

    ASSERT_EQ(2U, asked.size());
    EXPECT_NE(0, row.row);
    EXPECT_EQ(row, asked[0]);
    EXPECT_EQ((shell::Target{item(QStringLiteral("Printers/München")), 0}), asked[1]);
}

TEST_F(Selection, rowsThatAreEqualInAColumnKeepTheirNaturalOrderInBothDirections) {
    open(QStringLiteral("Printers/Berlin/Warehouse"));
    const auto& columns = shell().header().columns();
    const auto found = std::ranges::find(columns, wire::WideString(u"Jobs In Queue"), &shell::ShownColumn::title);
    ASSERT_NE(columns.end(), found);
    const auto jobs = static_cast<std::int32_t>(found - columns.begin());
    const auto namesOf = [&](bool ascending) {
        session().operations().perform([&](shell::Shell& console) {
            console.sort(shell::SortOrder{jobs, ascending});
            return true;
        });
        QStringList names;
        for (std::size_t row = 0; row < shell().pane().rowCount(); ++row) {
            if (desktop::toQString(shell().pane().cell(row, jobs)) == QStringLiteral("0")) {
                names += desktop::toQString(shell().pane().cell(row, 0));
            }
        }
        return names;
    };
    const QStringList up = namesOf(true);
    const QStringList down = namesOf(false);

    EXPECT_LT(2, up.size());
    EXPECT_EQ(up, down);
    EXPECT_TRUE(std::ranges::is_sorted(up));
}

} // namespace
} // namespace desktoptest
