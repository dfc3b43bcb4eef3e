#include "tests/hosts/desktop/WindowFixture.h"

#include "client/CQVXAdminClassProperties.h"

#include <QLineEdit>
#include <QMenuBar>

namespace desktoptest {
namespace {

// The window of somebody who has worked for a while, with the server restarted beneath it.
class LoginAgain : public WindowFixture {
protected:
    void logInWhenOffered() {
        whenAsked([](QDialog& box) { press(box, QStringLiteral("Log In Again...")); });
        whenAsked([](QDialog& dialog) { logIn(dialog); });
    }
    // Everything but the password is there already.
    static void logIn(QDialog& dialog) {
        EXPECT_EQ(QStringLiteral("admin"), dialog.findChildren<QLineEdit*>()[2]->text());
        type(dialog, 3, QStringLiteral("secret-pw"));
        press(dialog, QStringLiteral("Login"));
    }
    static void decline(QDialog& box) { press(box, QStringLiteral("Close")); }
    int commandsCalled(const QString& name) {
        int count = 0;
        for (std::size_t line = 0; line < session().activity().size(); ++line) {
            count += session().activity()[line].command == name ? 1 : 0;
        }
        return count;
    }
    QStringList recentLogins() {
        QMenu* const file = window().menuBar()->actions().front()->menu();
        emit file->aboutToShow();
        QStringList texts;
        for (const QAction* const action : file->actions()) {
            texts += action->text();
        }
        return texts.filter(QStringLiteral(" on "));
    }
};

TEST_F(LoginAgain, whatWasToBeShownIsShownAfterTheLogin) {
    open(QStringLiteral("Printers/Łódź"));
    server.restart();
    logInWhenOffered();

    show(QStringLiteral("Printers/München"));

    EXPECT_EQ(item(QStringLiteral("Printers/München")), shell().selection().scope);
    EXPECT_EQ(8, rows().size());
    EXPECT_FALSE(session().watch().isTurnedAway());
}

TEST_F(LoginAgain, anItemThatWasToBeOpenedOpensAfterTheLogin) {
    open();
    const auto index = static_cast<desktop::ScopeModel&>(*panes().tree().model()).indexOf(item("Printers/Berlin"));
    server.restart();
    logInWhenOffered();

    panes().tree().expand(index);
    settle();

    EXPECT_EQ((QStringList{"Headquarters", "Warehouse"}), childrenOf(QStringLiteral("Printers/Berlin")));
    EXPECT_TRUE(panes().tree().isExpanded(index));
    EXPECT_EQ(item(QStringLiteral("Printers")), shell().selection().scope);
}

TEST_F(LoginAgain, aRefreshIsRepeatedAndTheSelectionStays) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-003"));
    server.restart();
    logInWhenOffered();

    window().actions().refresh->trigger();
    settle();

    EXPECT_EQ(8, rows().size());
    EXPECT_EQ(QStringLiteral("MUC-003"), panes().list().currentIndex().siblingAtColumn(0).data().toString());
}

TEST_F(LoginAgain, aNewRegionIsMadeOnceAfterALoginBeforeItsDialogOpens) {
    open();
    server.restart();
    logInWhenOffered();
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("North"));
        press(dialog, QStringLiteral("OK"));
    });

    choose(QStringLiteral("Create region"));

    EXPECT_EQ(1, commandsCalled(QStringLiteral("CreateRegion")));
    window().actions().refresh->trigger();
    settle();
    EXPECT_TRUE(childrenOf(QStringLiteral("Printers")).contains(QStringLiteral("North")));
}

TEST_F(LoginAgain, aDialogThatIsOpenSendsItsChangeOnceAfterTheLogin) {
    open();
    whenAsked([this](QDialog& dialog) {
        server.restart();
        logInWhenOffered();
        type(dialog, 0, QStringLiteral("North"));
        press(dialog, QStringLiteral("OK"));
    });

    choose(QStringLiteral("Create region"));

    EXPECT_EQ(1, commandsCalled(QStringLiteral("CreateRegion")));
    window().actions().refresh->trigger();
    settle();
    EXPECT_TRUE(childrenOf(QStringLiteral("Printers")).contains(QStringLiteral("North")));
}

TEST_F(LoginAgain, aLoginThatIsNotWantedLeavesTheWindowAndCanBeHadFromTheNotice) {
    open(QStringLiteral("Printers/München"));
    server.restart();
    whenAsked(decline);

    window().actions().refresh->trigger();
    settle();

    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(session().watch().isTurnedAway());
    window().actions().refresh->trigger(); // asks no second time
    settle();
    whenAsked([](QDialog& dialog) { logIn(dialog); });
    press(window(), QStringLiteral("Log In Again..."));
    settle();
    EXPECT_EQ(8, rows().size());
    EXPECT_EQ(QString(), panes().notice().said());
}

TEST_F(LoginAgain, aLoginThatIsGivenUpLeavesTheLoginThatWas) {
    open(QStringLiteral("Printers/München"));
    const auto before = client::theProperties;
    whenAsked([this](QDialog& dialog) {
        whenAsked([](QDialog& box) { press(box, QStringLiteral("OK")); });
        whenAsked([](QDialog& again) { press(again, QStringLiteral("Cancel")); });
        type(dialog, 1, QStringLiteral("1")); // a port on which nobody listens
        press(dialog, QStringLiteral("Login"));
    });

    window().actions().logIn->trigger();
    settle();

    EXPECT_EQ(before, client::theProperties);
    EXPECT_EQ(8, rows().size());
}

TEST_F(LoginAgain, theMenuLogsInAgainAndReadsTheListAgain) {
    open(QStringLiteral("Printers/München"));
    server.restart();
    whenAsked([](QDialog& dialog) { logIn(dialog); });

    window().actions().logIn->trigger();
    settle();

    EXPECT_EQ(8, rows().size());
    EXPECT_EQ(item(QStringLiteral("Printers/München")), shell().selection().scope);
}

TEST_F(LoginAgain, anotherServerIsShownInTheSameWindowAndTheFirstOneIsRemembered) {
    const ServerProcess other;
    ASSERT_NE(0, other.port());
    open(QStringLiteral("Printers"));
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("North"));
        press(dialog, QStringLiteral("OK"));
    });
    choose(QStringLiteral("Create region"));
    window().actions().refresh->trigger();
    settle();
    ASSERT_EQ(4, childrenOf(QStringLiteral("Printers")).size());
    EXPECT_EQ(QStringList(), recentLogins());
    whenAsked([&](QDialog& dialog) {
        EXPECT_EQ(QString(), dialog.findChildren<QLineEdit*>()[0]->text());
        type(dialog, 0, QStringLiteral("127.0.0.1"));
        type(dialog, 1, QString::number(other.port()));
        type(dialog, 2, QStringLiteral("admin"));
        logIn(dialog);
    });

    window().actions().connect->trigger();
    settle();

    EXPECT_EQ(other.port(), client::theProperties->port);
    EXPECT_EQ(3, childrenOf(QStringLiteral("Printers")).size());
    EXPECT_EQ(QStringList{QStringLiteral("admin on 127.0.0.1:%1").arg(server.port())}, recentLogins());
}

TEST_F(LoginAgain, aServerThatIsDownIsNotTakenForALoginThatHasRunOut) {
    open(QStringLiteral("Printers/München"));
    server.stop();

    window().actions().refresh->trigger();
    settle();

    EXPECT_FALSE(session().watch().isTurnedAway());
    EXPECT_NE(QString(), panes().notice().said());
}

} // namespace
} // namespace desktoptest
