#include "snapin/PrintData.h"

#include "tests/snapin/LoginSteps.h"
#include "tests/support/NodeDriver.h"

#include <deque>

namespace {

using console::DataObjectType;
using console::Result;
using platform::Answer;
using snapin::AuthenticationDlg;
using snapin::PrintData;

// A user at a wizard that may close a dialog without its "Cancel".
class Wizard final : public platform::UserInterface {
public:
    struct Box {
        wire::WideString text;
        wire::WideString caption;
        std::uint32_t style;

        friend bool operator==(const Box&, const Box&) = default;
    };
    std::deque<std::function<void(AuthenticationDlg&)>> steps; // one per dialog
    std::vector<Box> boxes;
    std::vector<platform::WindowHandle> owners;

    Answer messageBox(platform::WindowHandle, const wire::WideString& text, const wire::WideString& caption,
                      std::uint32_t style) override {
        boxes.push_back({text, caption, style});
        return Answer::ok;
    }
    int runModal(forms::Form& form, platform::WindowHandle owner) override {
        owners.push_back(owner);
        form.open();
        const auto step = std::move(steps.front());
        steps.pop_front();
        step(dynamic_cast<AuthenticationDlg&>(form));
        return form.result();
    }
    void press(std::span<const platform::Key>) override {}
    void startThread(std::function<void()>) override {}
    platform::WindowHandle activeWindow() override { return 5; }
    void setForeground(platform::WindowHandle) override {}
    void close(platform::WindowHandle) override {}
};

class AddingTheSnapIn : public LoginSteps {
protected:
    void logInAt(const wire::WideString& port) {
        wizard_.steps.emplace_back([port](AuthenticationDlg& dialog) {
            dialog.serverName.userTyped(u"127.0.0.1");
            dialog.port.userTyped(port);
            dialog.userName.userTyped(u"ann");
            dialog.password.userTyped(u"secret");
            dialog.okButton().userPressed();
        });
    }
    void logInAt(const support::FakeLoginServer& server) { logInAt(server.portText()); }
    void cancel() {
        wizard_.steps.emplace_back([](AuthenticationDlg& dialog) { dialog.cancelButton().userPressed(); });
    }
    Result addSnapIn() { return root_->CreatePropertyPages(DataObjectType::snapinManager); }

    Wizard wizard_;
    platform::Platform host_{.ui = wizard_, .settings = platform_.settings};
    std::shared_ptr<PrintData> root_ = std::make_shared<PrintData>(host_);
};

TEST_F(AddingTheSnapIn, logsInAndSaysSo) {
    support::FakeLoginServer server({1});
    logInAt(server);

    EXPECT_EQ(addSnapIn(), Result::notDone);

    EXPECT_EQ(wizard_.boxes,
              (std::vector<Wizard::Box>{{u"Connected to Vantrel Print Management Server", u"Success!", 0x40}}));
    EXPECT_EQ(wizard_.owners, std::vector<platform::WindowHandle>{5});
    EXPECT_EQ(snapin::loginDone, 1U);
}

TEST_F(AddingTheSnapIn, asksAgainAfterAWrongPassword) {
    support::FakeLoginServer server({2});
    logInAt(server);
    cancel();

    EXPECT_EQ(addSnapIn(), Result::ok);

    EXPECT_EQ(wizard_.boxes.size(), 2U); // of the dialog and of the wizard
    EXPECT_EQ(wizard_.boxes.back(), (Wizard::Box{u"Invalid username or password!", u"Error", 0x10}));
    EXPECT_TRUE(wizard_.steps.empty());
}

TEST_F(AddingTheSnapIn, asksAgainWhileTheServerIsUnavailable) {
    logInAt(wire::toWide(std::to_string(support::ScriptedServer::unusedPort())));
    cancel();

    EXPECT_EQ(addSnapIn(), Result::ok);

    EXPECT_EQ(wizard_.boxes.back(), (Wizard::Box{u"Server unavailable", u"Error", 0x30}));
    EXPECT_TRUE(wizard_.steps.empty());
}

TEST_F(AddingTheSnapIn, worksWithoutASessionForAServerOfAnotherVersion) {
    support::FakeLoginServer server({3});
    logInAt(server);

    EXPECT_EQ(addSnapIn(), Result::ok);

    EXPECT_EQ(wizard_.boxes.back(), (Wizard::Box{u"Wrong server version", u"Warning", 0x30}));
    EXPECT_EQ(snapin::loginDone, 1U);
}

TEST_F(AddingTheSnapIn, worksAfterCancel) {
    cancel();

    EXPECT_EQ(addSnapIn(), Result::ok);

    EXPECT_TRUE(wizard_.boxes.empty());
    EXPECT_EQ(snapin::loginDone, 1U);
}

TEST_F(AddingTheSnapIn, isGivenUpWhenTheDialogGoesWithoutAWord) {
    wizard_.steps.emplace_back([](AuthenticationDlg&) {});

    EXPECT_EQ(addSnapIn(), Result::notDone);

    EXPECT_EQ(snapin::loginDone, 0U);
}

TEST_F(AddingTheSnapIn, isTheOnlyOccasionForPages) {
    EXPECT_EQ(root_->CreatePropertyPages(DataObjectType::scope), Result::unexpected);
    EXPECT_EQ(root_->QueryPagesFor(DataObjectType::scope), Result::notDone);
    EXPECT_EQ(root_->QueryPagesFor(DataObjectType::snapinManager), Result::ok);
}

class RootNode : public ::testing::Test {
protected:
    support::TestPlatform platform_;
    support::RecordingConsole console_;
    std::shared_ptr<PrintData> root_ = std::make_shared<PrintData>(platform_);
    console::ScopeId row_ = console_.addScopeRow(root_);
};

TEST_F(RootNode, holdsThePrintServer) {
    expand(console_, *root_, row_);
    expand(console_, *root_, row_, 2);

    EXPECT_EQ(console_.childNames(row_), std::vector<wire::WideString>{u"Vantrel Print Server"});
}

TEST_F(RootNode, hasNoContextMenuOfItsOwnAndNoColumns) {
    show(console_, *root_);

    EXPECT_TRUE(menuOf(console_, *root_).empty());
    EXPECT_TRUE(console_.columns.empty());
}

TEST_F(RootNode, hasItsIdentity) {
    EXPECT_EQ(root_->displayName(), u"Vantrel Manager");
    EXPECT_EQ(root_->nodeIdentity().nodeType.text, u"813A64F9-EC5E-4A73-9072-CC3667D1C40F");
    EXPECT_EQ(root_->scopeFields().nImage, 6);
    EXPECT_EQ(root_->scopeFields().nOpenImage, 6);
    EXPECT_EQ(root_->scopeFields().cChildren, 3);
}

} // namespace
