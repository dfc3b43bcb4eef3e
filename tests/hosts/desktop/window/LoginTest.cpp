#include "tests/hosts/desktop/WindowFixture.h"

#include "client/CQVXAdminClassProperties.h"

#include <QLineEdit>

namespace desktoptest {
namespace {

class Login : public WindowFixture {};

TEST_F(Login, asksForThePasswordAndShowsTheTree) {
    QString title;
    whenAsked([&](QDialog& dialog) {
        title = dialog.windowTitle();
        EXPECT_TRUE(window().isVisible());
        type(dialog, 3, QStringLiteral("secret-pw"));
        press(dialog, QStringLiteral("Login"));
    });
    whenAsked([](QDialog& dialog) { press(dialog, QStringLiteral("OK")); });
    bool started = false;
    openWithDialog();
    window().onStarted = [&](const auto&) { started = true; };
    ASSERT_TRUE(waitFor([&] { return started; }));
    settle();
    EXPECT_EQ(QStringLiteral("Connect to Vantrel Print Management Server"), title);
    EXPECT_EQ(item(QStringLiteral("Printers")), shell().selection().scope);
    EXPECT_EQ(3, childrenOf(QStringLiteral("Printers")).size());
    EXPECT_EQ(QStringLiteral("Printers – Vantrel Manager"), window().windowTitle());
}

TEST_F(Login, theWindowIsPaintedBeneathTheDialog) {
    int paints = 0;
    class Counter final : public QObject {
    public:
        explicit Counter(int& paints) : paints_(paints) {}
        bool eventFilter(QObject* /*watched*/, QEvent* event) override {
            paints_ += event->type() == QEvent::Paint ? 1 : 0;
            return false;
        }

    private:
        int& paints_;
    } counter(paints);
    whenAsked([&](QDialog& dialog) {
        window().installEventFilter(&counter);
        const int before = paints;
        window().update();
        EXPECT_TRUE(waitFor([&] { return paints > before; }));
        window().removeEventFilter(&counter);
        dialog.reject();
    });
    openWithDialog();
    EXPECT_TRUE(waitFor([&] { return !window().isVisible(); }));
}

TEST_F(Login, aLoginThatIsCancelledClosesTheProgram) {
    whenAsked([](QDialog& dialog) { press(dialog, QStringLiteral("Cancel")); });
    openWithDialog();
    EXPECT_TRUE(waitFor([&] { return !window().isVisible(); }));
}

TEST_F(Login, aWrongPasswordIsToldAndAskedForAgain) {
    QStringList said;
    whenAsked([&](QDialog& dialog) {
        type(dialog, 3, QStringLiteral("wrong"));
        whenAsked([&](QDialog& box) {
            said += box.windowTitle();
            press(box, QStringLiteral("OK"));
        });
        whenAsked([&](QDialog& again) {
            EXPECT_EQ(QString(), again.findChildren<QLineEdit*>()[2]->text());
            press(again, QStringLiteral("Cancel"));
        });
        press(dialog, QStringLiteral("Login"));
    });
    openWithDialog();
    EXPECT_TRUE(waitFor([&] { return !window().isVisible(); }));
    EXPECT_EQ(QStringList{QStringLiteral("Login Failed")}, said);
}

TEST_F(Login, withAPasswordFromOutsideItGoesWithoutADialog) {
    open();
    EXPECT_EQ("127.0.0.1", client::theProperties->host);
    EXPECT_TRUE(session().ui().loginFailure().isEmpty());
}

TEST_F(Login, anUnattendedLoginThatFailsIsGivenUp) {
    settings.values["UserName"] = u"nobody";
    openWithDialog();
    session().ui().setPassword(u"x");
    session().ui().setUnattended();
    EXPECT_TRUE(waitFor([&] { return !window().isVisible(); }));
    EXPECT_EQ(QStringLiteral("Invalid username or password!"), session().ui().loginFailure());
}

TEST_F(Login, thePasswordIsInNoLineOfTheLog) {
    open();
    const auto& log = session().activity();
    ASSERT_GT(log.size(), 2U);
    for (std::size_t line = 0; line < log.size(); ++line) {
        const auto& entry = log[line];
        EXPECT_FALSE((entry.about + entry.text + entry.target).contains(QStringLiteral("secret-pw")));
    }
}

} // namespace
} // namespace desktoptest
