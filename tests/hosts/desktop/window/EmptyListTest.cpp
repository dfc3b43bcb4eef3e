#include "tests/hosts/desktop/WindowFixture.h"

#include "client/CQVXAdminClassProperties.h"

namespace desktoptest {
namespace {

using EmptyList = WindowFixture;

TEST_F(EmptyList, saysWhichEntriesMakeSomething) {
    open(QStringLiteral("Printers"));
    whenAsked([](QDialog& dialog) {
        type(dialog, 0, QStringLiteral("North"));
        press(dialog, QStringLiteral("OK"));
    });
    choose(QStringLiteral("Create region"));
    window().actions().refresh->trigger();
    settle();

    show(QStringLiteral("Printers/North"));

    ASSERT_EQ(0, panes().listModel().rowCount());

    EXPECT_TRUE(panes().emptyText().startsWith(QStringLiteral("There is nothing here yet.\nThe Action menu has: ")))
        << panes().emptyText().toStdString();
    EXPECT_TRUE(panes().emptyText().contains(QStringLiteral("Create region")));
}

TEST_F(EmptyList, doesNotCallAListEmptyThatCouldNotBeRead) {
    open(QStringLiteral("Printers"));
    client::theProperties->port = 1; // where no server listens

    show(QStringLiteral("Printers/Berlin"));

    EXPECT_EQ(QStringLiteral("The list could not be read."), panes().emptyText());
    EXPECT_TRUE(panes().notice().said().startsWith(QStringLiteral("This list could not be read")));
}

TEST_F(EmptyList, offersNothingToActOnBeforeTheLogin) {
    whenAsked([this](QDialog& login) {
        EXPECT_FALSE(window().actions().back->isEnabled());
        EXPECT_FALSE(window().actions().up->isEnabled());
        EXPECT_FALSE(window().actions().refresh->isEnabled());
        login.reject();
    });
    openWithDialog();
    EXPECT_TRUE(waitFor([&] { return !window().isVisible(); }));
}

} // namespace
} // namespace desktoptest
