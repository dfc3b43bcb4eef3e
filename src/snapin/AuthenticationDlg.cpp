#include "snapin/AuthenticationDlg.h"

#include "client/CQVXAdminClass.h"
#include "protocol/estate/Login.h"

#include <algorithm>
#include <cstdlib>
#include <initializer_list>

namespace snapin {
namespace {

namespace style = platform::boxStyle;

wire::WideString versionLine(const platform::Platform& platform) {
    if (!platform.productVersion) {
        return u"VantrelAdmin MMC Version"; // without the blank and the colon of the other line
    }
    std::string numbers;
    for (const auto number : *platform.productVersion) {
        numbers += (numbers.empty() ? "" : ".") + std::to_string(number);
    }
    return u"Vantrel Admin MMC Version: " + wire::toWide(numbers);
}

// A number above 65535 keeps its low 16 bits; a text that is not a number gives port 0.
std::uint16_t portNumber(const wire::WideString& text) {
    return static_cast<std::uint16_t>(std::strtol(wire::toCodePage(text).c_str(), nullptr, 10));
}

bool isDigit(char16_t unit) {
    return unit >= u'0' && unit <= u'9';
}

} // namespace

AuthenticationDlg::AuthenticationDlg(platform::Platform& platform)
    : Form(platform, u"Connect to Vantrel Print Management Server", {.okLabel = u"Login"}) {
    port.onLeave = [this] { checkPort(); };
    userAuthentication.setResourceId(296);
    serverName.setResourceId(294);
    port.setResourceId(295);
    userName.setResourceId(276);
    password.setResourceId(260);
    domain.setResourceId(292);
    version.setResourceId(461);
}

void AuthenticationDlg::onInitDialog() {
    version.setText(versionLine(platform()));
    if (platform().settings.exists()) {
        readSettings();
        focusFirstMissing();
    } else {
        serverName.setFocus();
    }
}

void AuthenticationDlg::readSettings() {
    const auto& settings = platform().settings;
    serverName.setText(settings.read("ServerName").value_or(u""));
    port.setText(settings.read("ServerPort").value_or(u""));
    domain.setText(settings.read("DomainName").value_or(u""));
    userName.setText(settings.read("UserName").value_or(u""));
}

// The domain may be missing.
void AuthenticationDlg::focusFirstMissing() {
    for (forms::TextControl* const box : std::initializer_list<forms::TextControl*>{&serverName, &port, &userName}) {
        if (box->text().empty()) {
            box->setFocus();
            return;
        }
    }
    password.setFocus();
}

void AuthenticationDlg::checkPort() {
    if (!std::ranges::all_of(port.text(), isDigit)) {
        messageBox(u"Port should be a number", u"Warning", style::iconWarning);
        port.setFocus();
    }
}

// New settings take the place of the old ones whether or not the login succeeds.
void AuthenticationDlg::onOk() {
    auto properties = std::make_shared<client::CQVXAdminClassProperties>();
    properties->host = wire::toCodePage(serverName.text());
    properties->port = portNumber(port.text());
    properties->userName = userName.text();
    properties->domainName = domain.text();
    properties->hooks = platform().hooks;
    client::theProperties = std::move(properties);

    client::CQVXAdminClass client;
    showStatus(client.login(userName.text(), password.text(), domain.text()));
}

void AuthenticationDlg::showStatus(std::uint16_t loginStatus) {
    switch (loginStatus) {
    case protocol::loginStatus::loggedIn:
        status_ = AuthenticationStatus::connected;
        statusText_ = u"Connected to Vantrel Print Management Server";
        storeSettings();
        EndDialog(forms::idOk);
        break;
    case protocol::loginStatus::wrongCredentials:
        fail(AuthenticationStatus::badCredentials, u"Invalid username or password!", u"Login Failed", style::iconStop);
        break;
    case protocol::loginStatus::wrongVersion:
        fail(AuthenticationStatus::wrongVersion, u"Wrong server version", u"Warning", style::iconWarning);
        break;
    default: // also an unknown answer
        fail(AuthenticationStatus::serverUnavailable, u"Server unavailable", u"Warning", style::iconWarning);
        break;
    }
}

// Cut to the length that the settings have always allowed. What can't be stored is asked for again next time.
void AuthenticationDlg::storeSettings() {
    auto& settings = platform().settings;
    settings.write("ServerName", serverName.text().substr(0, 50));
    settings.write("ServerPort", port.text().substr(0, 10));
    settings.write("UserName", userName.text().substr(0, 50));
    settings.write("DomainName", domain.text().substr(0, 50));
}

void AuthenticationDlg::fail(AuthenticationStatus status, const wire::WideString& text, const wire::WideString& caption,
                             std::uint32_t icon) {
    status_ = status;
    statusText_ = text;
    messageBox(text, caption, icon);
    userName.setText({});
    password.setText({});
    userName.setFocus();
}

void AuthenticationDlg::onCancel() {
    status_ = AuthenticationStatus::cancelled;
    statusText_ = u"Try Again";
    EndDialog(forms::idCancel);
}

} // namespace snapin
