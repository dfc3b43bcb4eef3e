#include "hosts/desktop/window/PathBar.h"

#include "hosts/desktop/look/ElidedLabel.h"
#include "tests/hosts/desktop/WindowFixture.h"

#include <QMenu>
#include <QToolButton>

namespace desktoptest {
namespace {

using desktop::PathBar;

std::vector<PathBar::Step> longPath() {
    return {{1, QStringLiteral("Printers")},
            {2, QStringLiteral("Headquarters of the whole company")},
            {3, QStringLiteral("Second floor")},
            {4, QStringLiteral("Reception")}};
}

QToolButton* buttonTo(const QWidget& bar, const QString& name) {
    for (auto* const button : bar.findChildren<QToolButton*>()) {
        if (button->accessibleName() == QStringLiteral("Go to ") + name && button->isVisible()) {
            return button;
        }
    }
    return nullptr;
}

class PathBarTest : public testing::Test {
protected:
    void show(int width) {
        bar.resize(width, bar.sizeHint().height());
        bar.show();
        bar.setPath(longPath());
    }

    PathBar bar;
};

TEST_F(PathBarTest, showsTheWholePathWhereThereIsRoom) {
    show(900);

    EXPECT_EQ(QStringLiteral("Printers › Headquarters of the whole company › Second floor › Reception"),
              bar.shownText());
}

TEST_F(PathBarTest, givesUpTheFirstNamesForTheLastInANarrowWindow) {
    show(220);

    EXPECT_TRUE(bar.shownText().startsWith(QStringLiteral("… › "))) << bar.shownText().toStdString();
    EXPECT_TRUE(bar.shownText().endsWith(QStringLiteral("Reception")));
    EXPECT_EQ(nullptr, buttonTo(bar, QStringLiteral("Printers")));

    bar.resize(900, bar.height());
    EXPECT_NE(nullptr, buttonTo(bar, QStringLiteral("Printers")));
}

TEST_F(PathBarTest, listsTheNamesWithoutRoomInAMenuThatGoesThere) {
    show(220);
    console::ScopeId chosen = 0;
    bar.onChosen = [&](console::ScopeId id) { chosen = id; };
    const auto* const menu = bar.findChild<QMenu*>();
    ASSERT_GE(menu->actions().size(), 2);

    menu->actions().at(1)->trigger();

    EXPECT_EQ(2, chosen);
}

TEST_F(PathBarTest, showsAnAmpersandOfAName) {
    bar.resize(600, 30);
    bar.show();
    bar.setPath({{1, QStringLiteral("R&D")}, {2, QStringLiteral("Lab")}});

    ASSERT_NE(nullptr, buttonTo(bar, QStringLiteral("R&D")));
    EXPECT_EQ(QStringLiteral("R&&D"), buttonTo(bar, QStringLiteral("R&D"))->text());
}

using PathOfWindow = WindowFixture;

TEST_F(PathOfWindow, aClickOnANameGoesThere) {
    open(QStringLiteral("Printers/Berlin/Warehouse"));
    EXPECT_EQ(QStringLiteral("Printers › Berlin › Warehouse"), panes().path().shownText());

    QTest::mouseClick(buttonTo(panes().path(), QStringLiteral("Berlin")), Qt::LeftButton);
    settle();

    EXPECT_EQ(item("Printers/Berlin"), shell().selection().scope);
    EXPECT_EQ(QStringLiteral("Printers › Berlin"), panes().path().shownText());
}

} // namespace
} // namespace desktoptest
