#include "hosts/desktop/window/DetailsDock.h"

#include "tests/hosts/desktop/WindowFixture.h"

#include <QTextBrowser>

namespace desktoptest {
namespace {

class Details : public WindowFixture {
protected:
    void openDetails(const QString& path) {
        open(path);
        QTest::keyClick(&window(), Qt::Key_F3);
        settle();
    }
    QTextBrowser& text() { return *window().details().findChild<QTextBrowser*>(); }
};

TEST_F(Details, showEveryColumnOfTheSelectedRowEvenAHiddenOne) {
    openDetails(QStringLiteral("Printers/München"));
    panes().list().columns().setHidden(1, true);

    selectRow(QStringLiteral("MUC-001"));
    settle();

    ASSERT_TRUE(window().details().isVisible());
    const auto shown = text().toPlainText();
    EXPECT_TRUE(shown.startsWith(QStringLiteral("MUC-001"))) << shown.toStdString();
    EXPECT_TRUE(shown.contains(QStringLiteral("Mirado Folio 40 MFP"))) << shown.toStdString();
    EXPECT_TRUE(shown.contains(QStringLiteral("Location"))) << shown.toStdString();
}

TEST_F(Details, showTheRowAtTheEndOfAPath) {
    openDetails(QStringLiteral("Printers/München/MUC-003"));

    EXPECT_TRUE(text().toPlainText().startsWith(QStringLiteral("MUC-003"))) << text().toPlainText().toStdString();
}

TEST_F(Details, showTheListWithoutARow) {
    openDetails(QStringLiteral("Printers/München"));

    EXPECT_TRUE(text().toPlainText().startsWith(QStringLiteral("München")));
    EXPECT_TRUE(text().toPlainText().contains(QStringLiteral("8 rows")));
}

TEST_F(Details, canBeSelectedAndCopiedButNotChanged) {
    openDetails(QStringLiteral("Printers"));

    EXPECT_TRUE(text().isReadOnly());
    EXPECT_TRUE(text().textInteractionFlags().testFlag(Qt::TextSelectableByKeyboard));
}

TEST_F(Details, goAwayByTheSameKey) {
    openDetails(QStringLiteral("Printers"));

    QTest::keyClick(&window(), Qt::Key_F3);

    EXPECT_FALSE(window().details().isVisible());
}

TEST_F(Details, takeMarkupOfANameForText) {
    open(QStringLiteral("Printers"));
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("<b>R&D</b>"));
        press(dialog, QStringLiteral("OK"));
    });
    choose(QStringLiteral("Create region"));
    window().actions().refresh->trigger();
    settle();
    show(QStringLiteral("Printers/<b>R&D<\\/b>"));
    window().details().show();
    settle();

    EXPECT_TRUE(text().toPlainText().startsWith(QStringLiteral("<b>R&D</b>"))) << text().toPlainText().toStdString();
}

} // namespace
} // namespace desktoptest
