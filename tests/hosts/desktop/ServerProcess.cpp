#include "tests/hosts/desktop/ServerProcess.h"

#include <QFile>
#include <QTest>

#include <csignal>

#include <sys/prctl.h>

namespace desktoptest {
namespace {

constexpr int patience = 30'000; // milliseconds

} // namespace

ServerProcess::ServerProcess() {
    const QString passwordFile = folder_.filePath(QStringLiteral("password"));
    const QString portFile = folder_.filePath(QStringLiteral("port"));
    QFile file(passwordFile);
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QString::fromUtf16(password).toUtf8());
        file.close();
    }
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); }); // also when the test is killed
    process_.start(QStringLiteral(VANTREL_SERVER),
                   {"--database", folder_.filePath(QStringLiteral("estate.db")), "--sample", "small", "--user", "admin",
                    "--password-file", passwordFile, "--port", "0", "--port-file", portFile});
    const bool listens = QTest::qWaitFor(
        [&] {
            QFile port(portFile);
            port_ = port.open(QIODevice::ReadOnly) ? port.readAll().trimmed().toUShort() : quint16(0);
            return port_ != 0 || process_.state() == QProcess::NotRunning;
        },
        patience);
    port_ = listens ? port_ : quint16(0);
}

ServerProcess::~ServerProcess() {
    process_.terminate();
    if (!process_.waitForFinished(patience)) {
        process_.kill();
        process_.waitForFinished(patience);
    }
}

} // namespace desktoptest
