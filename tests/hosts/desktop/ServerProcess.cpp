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
    QFile file(folder_.filePath(QStringLiteral("password")));
    if (file.open(QIODevice::WriteOnly)) {
        file.write(QString::fromUtf16(password).toUtf8());
        file.close();
    }
    process_.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process_.setStandardOutputFile(QProcess::nullDevice());
    process_.setChildProcessModifier([] { ::prctl(PR_SET_PDEATHSIG, SIGTERM); }); // also when the test is killed
    start(QStringLiteral("0"), {"--sample", "small"});
}

void ServerProcess::start(const QString& port, const QStringList& more) {
    const QString portFile = folder_.filePath(QStringLiteral("port"));
    QFile::remove(portFile);
    process_.start(QStringLiteral(VANTREL_SERVER),
                   QStringList{"--database", folder_.filePath(QStringLiteral("estate.db")), "--user", "admin",
                               "--password-file", folder_.filePath(QStringLiteral("password")), "--port", port,
                               "--port-file", portFile} +
                       more);
    quint16 listens = 0;
    const bool done = QTest::qWaitFor(
        [&] {
            QFile written(portFile);
            listens = written.open(QIODevice::ReadOnly) ? written.readAll().trimmed().toUShort() : quint16(0);
            return listens != 0 || process_.state() == QProcess::NotRunning;
        },
        patience);
    port_ = done ? listens : quint16(0);
}

void ServerProcess::stop() {
    process_.terminate();
    if (!process_.waitForFinished(patience)) {
        process_.kill();
        process_.waitForFinished(patience);
    }
}

void ServerProcess::restart() {
    stop();
    start(QString::number(port_), {});
}

ServerProcess::~ServerProcess() {
    stop();
}

} // namespace desktoptest
