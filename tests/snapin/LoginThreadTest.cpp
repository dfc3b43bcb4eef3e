#include "client/CommandObserver.h"
#include "tests/snapin/LoginSteps.h"

#include <set>
#include <thread>

namespace {

using platform::Answer;
using platform::Key;
using Presses = std::vector<std::vector<Key>>;
using Windows = std::vector<platform::WindowHandle>;

constexpr platform::WindowHandle mainWindow = 11;
constexpr const char16_t* connected = u"Connected to Vantrel Print Management Server";

class LoginThread : public LoginSteps {};

TEST_F(LoginThread, bringsTheWindowToTheFrontSaysSoAndPressesF5) {
    support::FakeLoginServer server({1});
    expectLogin(server);
    platform_.ui.expectBox(Answer::ok, connected);

    snapin::runLoginThread(platform_, mainWindow);

    EXPECT_EQ(platform_.ui.formOwners, Windows{mainWindow});
    EXPECT_EQ(platform_.ui.foreground, Windows{mainWindow});
    EXPECT_EQ(platform_.ui.presses(), (Presses{{Key::up}, {Key::f5}}));
    EXPECT_EQ(platform_.ui.boxes().front().owner, mainWindow);
    EXPECT_EQ(platform_.ui.boxes().front().caption, u"Success!");
    EXPECT_EQ(platform_.ui.boxes().front().style, platform::boxStyle::iconInformation);
    EXPECT_EQ(snapin::loginDone, 1U);
}

TEST_F(LoginThread, closesTheConsoleWhenTheLoginIsCancelled) {
    expectCancel();

    snapin::runLoginThread(platform_, mainWindow);

    EXPECT_EQ(platform_.ui.closed, Windows{mainWindow});
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
    EXPECT_TRUE(platform_.ui.foreground.empty());
    EXPECT_EQ(snapin::loginDone, 1U);
}

TEST_F(LoginThread, onlyPressesF5OnceTheLoginIsDone) {
    snapin::loginDone = 1;

    snapin::runLoginThread(platform_, mainWindow);

    EXPECT_TRUE(platform_.ui.forms().empty());
    EXPECT_EQ(platform_.ui.presses(), Presses{{Key::f5}});
}

// If a host runs the login on its own thread, its hooks are called from there.
TEST_F(LoginThread, tellsTheObserverOfItsCommandsOnItsOwnThread) {
    struct Threads final : client::CommandObserver {
        void commandStarted(const client::CommandReport&) override { seen.insert(std::this_thread::get_id()); }
        void commandEnded(const client::CommandReport&) override { seen.insert(std::this_thread::get_id()); }
        std::set<std::thread::id> seen;
    } threads;
    platform_.platform().hooks.commands = &threads;
    support::FakeLoginServer server({1});
    expectLogin(server);
    platform_.ui.expectBox(Answer::ok, connected);

    std::thread login([&] { snapin::runLoginThread(platform_, mainWindow); });
    const auto id = login.get_id();
    login.join();

    EXPECT_EQ(threads.seen, std::set{id});
}

TEST_F(LoginThread, letsNoExceptionOut) {
    class Broken final : public platform::UserInterface {
    public:
        Answer messageBox(platform::WindowHandle, const wire::WideString&, const wire::WideString&,
                          std::uint32_t) override {
            return Answer::ok;
        }
        int runModal(forms::Form&, platform::WindowHandle) override { throw std::runtime_error("no screen"); }
        void press(std::span<const Key>) override {}
        void startThread(std::function<void()>) override {}
        platform::WindowHandle activeWindow() override { return 0; }
        void setForeground(platform::WindowHandle) override {}
        void close(platform::WindowHandle) override {}
    };
    Broken ui;
    platform::Platform broken{.ui = ui, .settings = platform_.settings, .hooks = platform_.platform().hooks};

    EXPECT_NO_THROW(snapin::runLoginThread(broken, mainWindow));

    EXPECT_EQ(platform_.failures(), std::vector<std::string>{"login: no screen"});
}

} // namespace
