#include "tests/hosts/desktop/WindowFixture.h"

#include "client/CQVXAdminClassProperties.h"
#include "hosts/desktop/activity/WaitPanel.h"
#include "tests/support/ScriptedServer.h"

#include <QLabel>
#include <QPushButton>

namespace desktoptest {
namespace {

using support::ScriptedServer;

// Repeats an action while a command waits.
class Meanwhile {
public:
    explicit Meanwhile(std::function<void()> act) {
        timer_.setInterval(10);
        timer_.callOnTimeout(std::move(act));
        timer_.start();
    }
    void stop() { timer_.stop(); }

private:
    QTimer timer_;
};

class Wait : public WindowFixture {
protected:
    // From now on the server receives every command and never answers.
    void stall() {
        stalling_ = std::make_unique<ScriptedServer>(
            std::vector<ScriptedServer::Script>(6, [](ScriptedServer::Connection& connection) { connection.stall(); }));
        client::theProperties->port = stalling_->port();
    }
    void recover() { client::theProperties->port = server.port(); }

    // Refreshes, and acts once the panel is shown.
    void refreshAnd(const std::function<void(QWidget& panel)>& act) {
        int panels = 0;
        Meanwhile meanwhile([&] {
            for (auto* const button : window().findChildren<QPushButton*>()) {
                auto* const panel = dynamic_cast<desktop::WaitPanel*>(button->parentWidget());
                if (panel != nullptr && panel->isVisible() && button->isEnabled()) {
                    ++panels;
                    act(*panel);
                    return;
                }
            }
        });
        window().actions().refresh->trigger();
        settle();
        EXPECT_GT(panels, 0);
    }

private:
    std::unique_ptr<ScriptedServer> stalling_;
};

TEST_F(Wait, aSlowCommandIsShownAndCanBeCancelled) {
    open(QStringLiteral("Printers/München"));
    const auto before = rows();
    stall();
    QString said;
    refreshAnd([&](QWidget& panel) {
        said = panel.findChild<QLabel*>()->text();
        press(panel, QStringLiteral("Cancel"));
    });
    EXPECT_TRUE(said.startsWith(QStringLiteral("List "))) << said.toStdString();
    EXPECT_FALSE(window().waitIndicator().isShown());
    EXPECT_EQ(before, rows());
    EXPECT_TRUE(panes().notice().isVisible());
    EXPECT_TRUE(panes().notice().said().startsWith(
        QStringLiteral("This list could not be read: Reading was cancelled. The rows are from ")))
        << panes().notice().said().toStdString();
    const auto& log = session().activity();
    EXPECT_EQ(client::CommandOutcome::cancelled, log[log.size() - 1].outcome);
}

TEST_F(Wait, theNoteGoesOnceTheListIsReadAgain) {
    open(QStringLiteral("Printers/München"));
    stall();
    refreshAnd([](QWidget& panel) { press(panel, QStringLiteral("Cancel")); });
    recover();
    press(panes().notice(), QStringLiteral("Try Again"));
    settle();
    EXPECT_FALSE(panes().notice().isVisible());
    EXPECT_EQ(8, rows().size());
}

TEST_F(Wait, escapeGivesUpToo) {
    open(QStringLiteral("Printers/München"));
    stall();
    refreshAnd([&](QWidget&) { QTest::keyClick(&panes().list(), Qt::Key_Escape); });
    EXPECT_TRUE(panes().notice().isVisible());
}

TEST_F(Wait, theWindowIsRepaintedMeanwhile) {
    open(QStringLiteral("Printers/München"));
    class Counter final : public QObject {
    public:
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            paints += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }
        int paints = 0;
    } counter;
    panes().list().viewport()->installEventFilter(&counter);
    stall();
    int seen = 0;
    refreshAnd([&](QWidget& panel) {
        panes().list().viewport()->update();
        if (counter.paints > 3 && ++seen > 1) {
            press(panel, QStringLiteral("Cancel"));
        }
    });
    panes().list().viewport()->removeEventFilter(&counter);
    EXPECT_GT(counter.paints, 3);
}

TEST_F(Wait, nothingThatThePersonDoesMeanwhileGetsThrough) {
    open(QStringLiteral("Printers/München"));
    const auto selected = panes().list().currentIndex();
    stall();
    const auto operations = session().operations().count();
    refreshAnd([&](QWidget& panel) {
        QTest::mouseClick(panes().list().viewport(), Qt::LeftButton, {}, QPoint(20, 50));
        QTest::keyClick(&panes().list(), Qt::Key_Down);
        QTest::keyClicks(&panes().filter(), QStringLiteral("x"));
        press(panel, QStringLiteral("Cancel"));
    });
    EXPECT_EQ(selected, panes().list().currentIndex());
    EXPECT_EQ(QString(), panes().filter().text());
    EXPECT_EQ(QStringLiteral("München"), panes().tree().currentIndex().data().toString());
    EXPECT_GT(session().operations().count(), operations);
}

TEST_F(Wait, closingTheWindowMeanwhileGivesUpFirst) {
    open(QStringLiteral("Printers/München"));
    stall();
    refreshAnd([&](QWidget&) { window().close(); });
    EXPECT_TRUE(window().isVisible());
    EXPECT_TRUE(window().close());
}

TEST_F(Wait, aServerThatIsGoneLeavesTheOldRowsWithANote) {
    open(QStringLiteral("Printers/München"));
    const auto before = rows();
    client::theProperties->port = ScriptedServer::unusedPort();
    window().actions().refresh->trigger();
    settle();
    EXPECT_EQ(before, rows());
    EXPECT_TRUE(panes().notice().isVisible());
    EXPECT_TRUE(panes().notice().said().contains(QStringLiteral("The rows are from ")));
}

} // namespace
} // namespace desktoptest
