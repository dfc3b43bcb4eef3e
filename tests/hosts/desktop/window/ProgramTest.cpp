#include "hosts/desktop/window/Program.h"

#include "client/CQVXAdminClassProperties.h"
#include "hosts/desktop/look/Text.h"
#include "snapin/LoginThread.h"
#include "tests/hosts/desktop/KeptLook.h"
#include "tests/hosts/desktop/ServerProcess.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QTemporaryDir>

namespace desktoptest {
namespace {

TEST(WholeProgram, takesAPictureAndWritesNothingToStandardOutput) {
    const KeptLook kept;
    const ServerProcess server;
    const QTemporaryDir folder;
    snapin::loginDone = 0;
    desktop::Options options;
    options.settings = folder.filePath(QStringLiteral("login.ini"));
    options.screenshot = folder.filePath(QStringLiteral("window.png"));
    options.login = {{"ServerName", u"127.0.0.1"},
                     {"ServerPort", desktop::toWideString(QString::number(server.port()))},
                     {"UserName", u"admin"}};

    testing::internal::CaptureStdout();
    const int status = desktop::runProgram(options, wire::WideString(ServerProcess::password));
    const std::string output = testing::internal::GetCapturedStdout();

    client::theProperties.reset();
    EXPECT_EQ(0, status);
    EXPECT_EQ("", output);
    EXPECT_FALSE(QImage(options.screenshot).isNull());
}

} // namespace
} // namespace desktoptest
