#include "hosts/desktop/window/LoginKeeper.h"

#include "client/CQVXAdminClassProperties.h"
#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/window/Question.h"
#include "snapin/AuthenticationDlg.h"

namespace desktop {
namespace {

void fill(snapin::AuthenticationDlg& dialog, const ServerLogin& wanted) {
    dialog.open();
    dialog.serverName.setText(toWideString(wanted.host));
    dialog.port.setText(wanted.port != 0 ? toWideString(QString::number(wanted.port)) : wire::WideString());
    dialog.userName.setText(toWideString(wanted.user));
    dialog.domain.setText(toWideString(wanted.domain));
    if (wanted.host.isEmpty()) {
        dialog.serverName.setFocus();
    } else {
        dialog.password.setFocus();
    }
}

} // namespace

ServerLogin LoginKeeper::current() {
    const auto& settings = client::theProperties;
    if (!settings) {
        return {};
    }
    return {.host = toQString(wire::fromCodePage(settings->host)),
            .port = settings->port,
            .user = toQString(settings->userName),
            .domain = toQString(settings->domainName)};
}

void LoginKeeper::remember() const {
    if (const auto login = current(); !login.host.isEmpty()) {
        settings_.addLogin(login);
    }
}

bool LoginKeeper::logIn(const ServerLogin& wanted) {
    const auto before = client::theProperties; // every attempt replaces it
    const auto loginBefore = current();
    snapin::AuthenticationDlg dialog(platform_);
    fill(dialog, wanted);
    ui_.runModal(dialog, ui_.activeWindow());
    if (dialog.status() != snapin::AuthenticationStatus::connected) {
        client::theProperties = before;
        return false;
    }
    remember();
    const auto now = current();
    if ((now.host != loginBefore.host || now.port != loginBefore.port) && onOtherServer) {
        onOtherServer();
    }
    return true;
}

bool LoginKeeper::offer() {
    const auto login = current();
    const bool wanted =
        warn(ui_.owner(), QStringLiteral("Login"),
             QStringLiteral("%1 accepts no commands from this console until you log in again: the login has run out, "
                            "or the server was restarted.\n\nThe window stays as it is.")
                 .arg(login.host),
             QStringLiteral("&Log In Again..."));
    return wanted && logIn(login);
}

} // namespace desktop
