#pragma once

#include "client/CQVXAdminClassProperties.h"
#include "snapin/AuthenticationDlg.h"
#include "snapin/LoginThread.h"
#include "tests/support/FakeLoginServer.h"
#include "tests/support/TestPlatform.h"

#include <gtest/gtest.h>

// A process in which nobody has logged in yet, and a user who does.
class LoginSteps : public ::testing::Test {
protected:
    LoginSteps() { snapin::loginDone = 0; }
    ~LoginSteps() override {
        snapin::loginDone = 0;
        client::theProperties.reset();
    }

    // The user logs in at the server, which is expected to answer with success.
    void expectLogin(const support::FakeLoginServer& server) {
        platform_.ui.expect<snapin::AuthenticationDlg>([port = server.portText()](snapin::AuthenticationDlg& dialog) {
            dialog.serverName.userTyped(u"127.0.0.1");
            dialog.port.userTyped(port);
            dialog.userName.userTyped(u"ann");
            dialog.password.userTyped(u"secret");
            dialog.okButton().userPressed();
        });
    }

    void expectCancel() {
        platform_.ui.expect<snapin::AuthenticationDlg>(
            [](snapin::AuthenticationDlg& dialog) { dialog.cancelButton().userPressed(); });
    }

    support::TestPlatform platform_;
};
