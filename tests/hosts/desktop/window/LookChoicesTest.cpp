#include "hosts/desktop/window/LookChoices.h"

#include "hosts/desktop/window/Program.h"
#include "tests/hosts/desktop/KeptLook.h"
#include "tests/hosts/desktop/WindowFixture.h"

#include <QHeaderView>
#include <QMenu>
#include <QMenuBar>
#include <QStatusBar>

namespace desktoptest {
namespace {

class ViewMenu : public WindowFixture {
protected:
    static QAction* entry(const QList<QAction*>& actions, const QString& text) {
        for (QAction* const action : actions) {
            if (action->text().remove(QLatin1Char('&')) == text) {
                return action;
            }
        }
        ADD_FAILURE() << "there is no entry " << text.toStdString();
        return nullptr;
    }
    // The entries of a menu within the View menu, as they are when it is opened.
    QMenu& menu(const QString& text) {
        QMenu* const view = entry(window().menuBar()->actions(), QStringLiteral("View"))->menu();
        QMenu* const inner = entry(view->actions(), text)->menu();
        emit inner->aboutToShow();
        return *inner;
    }
    void chooseEntry(const QString& menuText, const QString& text) {
        entry(menu(menuText).actions(), text)->trigger();
        settle();
    }
    int lightness() { return window().palette().color(QPalette::Window).lightness(); }

private:
    KeptLook look_;
};

TEST_F(ViewMenu, changesTheLookAtOnceAndRemembersIt) {
    desktop::applyColorScheme(desktop::ColorScheme::light);
    open();
    const QImage before = panes().tree().grab().toImage();

    chooseEntry(QStringLiteral("Look"), QStringLiteral("Dark"));

    EXPECT_LT(lightness(), 100);
    EXPECT_NE(before, panes().tree().grab().toImage());
    EXPECT_EQ(desktop::ColorScheme::dark, desktop::LookChoices::savedLook(*viewSettings));
    EXPECT_TRUE(entry(menu(QStringLiteral("Look")).actions(), QStringLiteral("Dark"))->isChecked());

    chooseEntry(QStringLiteral("Look"), QStringLiteral("Light"));

    EXPECT_GT(lightness(), 150);
    EXPECT_EQ(before, panes().tree().grab().toImage());
    EXPECT_EQ(desktop::ColorScheme::light, desktop::LookChoices::savedLook(*viewSettings));
}

TEST_F(ViewMenu, leadsBackToTheLookOfTheSystem) {
    desktop::applyColorScheme(desktop::ColorScheme::system);
    const int ofSystem = QApplication::palette().color(QPalette::Window).lightness();
    open();

    chooseEntry(QStringLiteral("Look"), QStringLiteral("Dark"));
    chooseEntry(QStringLiteral("Look"), QStringLiteral("Like the System"));

    EXPECT_EQ(ofSystem, lightness());
    EXPECT_EQ(desktop::ColorScheme::system, desktop::appliedColorScheme());
}

TEST_F(ViewMenu, offersTheScaleForTheNextStart) {
    open();
    EXPECT_TRUE(entry(menu(QStringLiteral("Scale at Next Start")).actions(), QStringLiteral("100 %"))->isChecked());

    chooseEntry(QStringLiteral("Scale at Next Start"), QStringLiteral("150 %"));

    EXPECT_EQ(150, desktop::LookChoices::savedScale(*viewSettings));
    EXPECT_EQ(QStringLiteral("The window will have a scale of 150 % when it is started again."),
              window().statusBar()->currentMessage());
}

TEST_F(ViewMenu, hasTheColumnsOfTheListShown) {
    open(QStringLiteral("Printers/München"));
    const auto& header = *panes().list().header();

    chooseEntry(QStringLiteral("Columns"), QStringLiteral("Model"));
    EXPECT_TRUE(header.isSectionHidden(1));
    EXPECT_FALSE(entry(menu(QStringLiteral("Columns")).actions(), QStringLiteral("Model"))->isChecked());

    chooseEntry(QStringLiteral("Columns"), QStringLiteral("Model"));
    EXPECT_FALSE(header.isSectionHidden(1));

    show(QStringLiteral("Printers"));
    const auto& only = *entry(menu(QStringLiteral("Columns")).actions(), QStringLiteral("Region Name"));
    EXPECT_TRUE(only.isChecked());
    EXPECT_FALSE(only.isEnabled()) << "the last column stays";
}

TEST(LookSettings, ofGarbageAreIgnored) {
    const QTemporaryDir folder;
    desktop::ViewSettings settings(folder.filePath(QStringLiteral("view.ini")));
    settings.setState(QStringLiteral("look"), "pink");
    settings.setState(QStringLiteral("scale"), "90000");

    EXPECT_EQ(desktop::ColorScheme::system, desktop::LookChoices::savedLook(settings));
    EXPECT_EQ(100, desktop::LookChoices::savedScale(settings));
}

TEST(LookSettings, giveTheScaleUnlessTheCommandLineHasAnotherOrAPictureIsTaken) {
    const QTemporaryDir folder;
    desktop::ViewSettings settings(folder.filePath(QStringLiteral("login.desktop.ini")));
    settings.setState(QStringLiteral("scale"), "125");
    desktop::Options options;
    options.settings = folder.filePath(QStringLiteral("login.ini"));

    EXPECT_EQ(1.25, desktop::scaleOf(options));
    options.screenshot = QStringLiteral("picture.png");
    EXPECT_EQ(0.0, desktop::scaleOf(options));
    options.scale = 3;
    EXPECT_EQ(3.0, desktop::scaleOf(options));
}

} // namespace
} // namespace desktoptest
