#include "hosts/desktop/window/AutoRefresh.h"

#include "client/CQVXAdminClassProperties.h"
#include "tests/hosts/desktop/WindowFixture.h"

#include <QMenu>
#include <QMenuBar>

namespace desktoptest {
namespace {

class AutomaticRefresh : public WindowFixture {
protected:
    // Whether the list is read again now.
    bool refreshes() {
        const auto before = session().activity().size();
        window().autoRefresh().refreshIfIdle();
        settle();
        return session().activity().size() > before;
    }
};

TEST_F(AutomaticRefresh, isOffUntilTheUserWantsIt) {
    open();

    EXPECT_EQ(0, window().autoRefresh().interval());
}

TEST_F(AutomaticRefresh, readsTheListAgainAndKeepsTheSelection) {
    open(QStringLiteral("Printers/München"));
    selectRow(QStringLiteral("MUC-003"));

    EXPECT_TRUE(refreshes());

    EXPECT_EQ(QStringLiteral("MUC-003"), panes().list().currentIndex().siblingAtColumn(0).data().toString());
    EXPECT_NE(0, shell().selection().row);
}

TEST_F(AutomaticRefresh, waitsWhileAMenuIsOpen) {
    open(QStringLiteral("Printers/München"));
    QMenu menu(&window());
    menu.addAction(QStringLiteral("Something"));
    menu.popup(QPoint(10, 10));

    EXPECT_FALSE(refreshes());
    menu.close();
    EXPECT_TRUE(refreshes());
}

TEST_F(AutomaticRefresh, waitsWhileADialogIsOpen) {
    open(QStringLiteral("Printers/München"));
    QDialog dialog(&window());
    dialog.setModal(true);
    dialog.show();

    window().autoRefresh().refreshIfIdle();

    EXPECT_FALSE(session().operations().busy());
    dialog.close();
    EXPECT_TRUE(refreshes());
}

TEST_F(AutomaticRefresh, waitsWhileANameIsEdited) {
    open(QStringLiteral("Printers/München"));
    window().actions().rename->trigger();
    auto* const editor = panes().tree().findChild<QLineEdit*>();
    ASSERT_NE(nullptr, editor);

    window().autoRefresh().refreshIfIdle();

    EXPECT_FALSE(editor->isHidden());
}

TEST_F(AutomaticRefresh, leavesAServerThatDoesNotAnswerToTheUser) {
    open(QStringLiteral("Printers"));
    const auto port = client::theProperties->port;
    client::theProperties->port = 1; // where no server listens
    show(QStringLiteral("Printers/München"));
    ASSERT_FALSE(session().age().failure().isEmpty());

    EXPECT_FALSE(refreshes());

    client::theProperties->port = port;
    window().actions().refresh->trigger();
    settle();
    EXPECT_TRUE(refreshes());
}

TEST_F(AutomaticRefresh, changesNoSettingsByItself) {
    open();

    EXPECT_TRUE(viewSettings->state(QStringLiteral("refreshSeconds")).isEmpty());
}

TEST_F(AutomaticRefresh, isRememberedAndIgnoresAnIntervalThatIsNotOffered) {
    open();
    window().autoRefresh().setInterval(30);

    EXPECT_EQ(30, window().autoRefresh().interval());
    EXPECT_EQ(QByteArray("30"), viewSettings->state(QStringLiteral("refreshSeconds")));

    window().autoRefresh().setInterval(-4);
    EXPECT_EQ(0, window().autoRefresh().interval());
}

} // namespace
} // namespace desktoptest
