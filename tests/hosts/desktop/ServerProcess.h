#pragma once

#include <QProcess>
#include <QTemporaryDir>

namespace desktoptest {

// A vantreld in its own process with the sample estate, on a free port of the loopback address. The account is "admin"
// with the password "secret-pw".
class ServerProcess {
public:
    ServerProcess();
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;
    ~ServerProcess();

    void stop();
    // On the same port and with what it had before, but without any login.
    void restart();

    // 0 when the server did not start.
    [[nodiscard]] quint16 port() const { return port_; }
    static constexpr const char16_t* password = u"secret-pw";

private:
    void start(const QString& port, const QStringList& more);

    QTemporaryDir folder_;
    QProcess process_;
    quint16 port_ = 0;
};

} // namespace desktoptest
