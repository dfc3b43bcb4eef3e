#pragma once

#include "forms/EditBox.h"
#include "forms/Form.h"
#include "forms/Group.h"
#include "forms/Label.h"
#include "forms/PasswordBox.h"

#include <cstdint>

namespace snapin {

// How a login dialog ended. The numbers are not those of the server's answer.
enum class AuthenticationStatus : std::int32_t {
    none = 0, // no attempt, no Cancel
    connected = 1,
    badCredentials = 2,
    serverUnavailable = 3,
    wrongVersion = 4,
    cancelled = 5
};

// Asks for server, user and password, logs in, and makes the settings that all commands use.
class AuthenticationDlg final : public forms::Form {
public:
    // For a host, and for a port.
    static constexpr std::size_t maximumBytes = 124;

    explicit AuthenticationDlg(platform::Platform& platform);

    [[nodiscard]] AuthenticationStatus status() const { return status_; }
    // The text for the status.
    [[nodiscard]] const wire::WideString& statusText() const { return statusText_; }

    // The blanks behind the labels are part of them.
    forms::Group userAuthentication{*this, u"User Authentication"};
    forms::EditBox serverName{userAuthentication, u"Server Name       ", {.codePageBytes = maximumBytes}};
    forms::EditBox port{userAuthentication, u"Port                     ", {.codePageBytes = maximumBytes}};
    forms::EditBox userName{userAuthentication, u"User Name          "};
    forms::PasswordBox password{userAuthentication, u"Password            "};
    forms::EditBox domain{userAuthentication, u"Domain                "};
    forms::Label version{*this, u"", u"VERSION"};

protected:
    void onInitDialog() override;
    void onOk() override;
    void onCancel() override;

private:
    void readSettings();
    void focusFirstMissing();
    void storeSettings();
    void checkPort();
    void showStatus(std::uint16_t loginStatus);
    void fail(AuthenticationStatus status, const wire::WideString& text, const wire::WideString& caption,
              std::uint32_t icon);

    AuthenticationStatus status_ = AuthenticationStatus::none;
    wire::WideString statusText_;
};

} // namespace snapin
