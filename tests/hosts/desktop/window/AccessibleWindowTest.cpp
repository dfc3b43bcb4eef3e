#include "client/CQVXAdminClassProperties.h"
#include "tests/hosts/desktop/AccessibleTree.h"
#include "tests/hosts/desktop/KeptLook.h"
#include "tests/hosts/desktop/WindowFixture.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QImage>
#include <QPlainTextEdit>
#include <QStatusBar>

#include <vector>

namespace desktoptest {
namespace {

class AccessibleWindow : public WindowFixture {
protected:
    // With everything that can be shown, and something wrong.
    void openWhole() {
        open(QStringLiteral("Printers/München"));
        window().activity().show();
        window().details().show();
        QTest::keyClicks(&panes().filter(), QStringLiteral("-colour:x"));
        settle();
        selectRow(QStringLiteral("MUC-003"));
        client::theProperties->port = 1; // where no server listens
        window().actions().refresh->trigger();
        settle();
        ASSERT_TRUE(panes().notice().isVisible());
    }
    static QAccessibleInterface& spoken(QWidget& widget) { return *QAccessible::queryAccessibleInterface(&widget); }
};

TEST_F(AccessibleWindow, hasANameAndARoleForEverythingThatCanBeUsed) {
    openWhole();
    int usable = 0;

    for (const QAccessibleInterface* each : everythingOn(spoken(window()))) {
        const auto state = each->state();
        if (state.invisible || !(state.focusable || state.checkable || state.selectable)) {
            continue;
        }
        ++usable;
        EXPECT_NE(QAccessible::NoRole, each->role()) << described(*each);
        // An empty cell has the title of its column to go by.
        const bool isCell = each->role() == QAccessible::Cell || each->role() == QAccessible::TreeItem;
        EXPECT_TRUE(isCell || !each->text(QAccessible::Name).isEmpty()) << described(*each);
    }

    EXPECT_GE(usable, 80);
}

TEST_F(AccessibleWindow, saysTheTextOfEachCellAndTheTitleOfEachColumn) {
    openWhole();
    auto* const table = spoken(panes().list()).tableInterface();
    ASSERT_NE(nullptr, table);
    const auto& model = panes().listModel();
    ASSERT_EQ(model.rowCount(), table->rowCount());
    ASSERT_EQ(model.columnCount(), table->columnCount());

    for (int row = 0; row < model.rowCount(); ++row) {
        for (int column = 0; column < model.columnCount(); ++column) {
            EXPECT_EQ(model.index(row, column).data().toString(), table->cellAt(row, column)->text(QAccessible::Name));
        }
    }
    for (int column = 0; column < model.columnCount(); ++column) {
        EXPECT_EQ(model.headerData(column, Qt::Horizontal, Qt::DisplayRole).toString(),
                  table->columnDescription(column));
    }
}

TEST_F(AccessibleWindow, saysWhichRowAndWhichItemAreSelected) {
    openWhole();

    auto* const list = spoken(panes().list()).tableInterface();
    ASSERT_NE(nullptr, list);
    const int row = panes().list().currentIndex().row();
    EXPECT_TRUE(list->cellAt(row, 0)->state().selected);
    EXPECT_FALSE(list->cellAt(row == 0 ? 1 : 0, 0)->state().selected);
    bool found = false;
    for (const QAccessibleInterface* item : everythingOn(spoken(panes().tree()))) {
        if (item->role() == QAccessible::TreeItem && item->text(QAccessible::Name) == QStringLiteral("München")) {
            found = true;
            EXPECT_TRUE(item->state().selected);
        }
        if (item->role() == QAccessible::TreeItem && item->text(QAccessible::Name) == QStringLiteral("Printers")) {
            EXPECT_TRUE(item->state().expanded);
        }
    }
    EXPECT_TRUE(found);
}

TEST_F(AccessibleWindow, saysInWordsWhatASignShows) {
    openWhole();

    EXPECT_TRUE(spoken(panes().filter()).text(QAccessible::Description).contains(QStringLiteral("There is no column")));
    EXPECT_EQ(QStringLiteral("-colour:x"), spoken(panes().filter()).text(QAccessible::Value));
    EXPECT_TRUE(panes().notice().said().startsWith(QStringLiteral("This list could not be read")));
    EXPECT_EQ(panes().notice().said(), spoken(panes().notice()).text(QAccessible::Description));
    for (const auto* const label : window().statusBar()->findChildren<QLabel*>()) {
        EXPECT_TRUE(label->text().isEmpty() || !label->accessibleName().isEmpty()) << label->text().toStdString();
    }
}

class FocusInWindow : public AccessibleWindow, public testing::WithParamInterface<desktop::ColorScheme> {
protected:
    // What a person sees around the widget while another one, or itself, has the keyboard.
    QImage lookOf(QWidget& widget, QWidget& focused) {
        focused.setFocus(Qt::TabFocusReason);
        settle();
        const QRect around = QRect(widget.mapTo(&window(), QPoint()), widget.size()).adjusted(-2, -2, 2, 2);
        return window().grab(around).toImage();
    }
    std::vector<QWidget*> stops() {
        std::vector<QWidget*> stops;
        for (auto* const widget : window().findChildren<QWidget*>()) {
            if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) != 0 &&
                widget->focusProxy() == nullptr) {
                stops.push_back(widget);
            }
        }
        return stops;
    }
};

TEST_P(FocusInWindow, canBeSeenWhereverItIs) {
    const KeptLook look(GetParam());
    openWhole();
    window().resize(1'400, 800);
    window().activateWindow();
    window().setAttribute(Qt::WA_KeyboardFocusChange); // as after the first Tab
    ASSERT_TRUE(waitFor([&] { return window().isActiveWindow(); }));
    const auto stops = this->stops();
    ASSERT_GE(stops.size(), 8U);

    for (QWidget* const widget : stops) {
        QWidget& elsewhere = widget == &panes().search() ? static_cast<QWidget&>(panes().filter()) : panes().search();
        const QImage without = lookOf(*widget, elsewhere);
        EXPECT_TRUE(lookOf(*widget, *widget) != without)
            << widget->metaObject()->className() << ' ' << widget->accessibleName().toStdString();
    }
}

INSTANTIATE_TEST_SUITE_P(OfBothLooks, FocusInWindow,
                         testing::Values(desktop::ColorScheme::light, desktop::ColorScheme::dark),
                         [](const auto& tested) {
                             return tested.param == desktop::ColorScheme::light ? "light" : "dark";
                         });

} // namespace
} // namespace desktoptest
