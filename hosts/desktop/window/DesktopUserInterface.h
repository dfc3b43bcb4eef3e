#pragma once

#include "shell/ShellUserInterface.h"

#include <QPointer>
#include <QString>
#include <QWidget>

#include <functional>
#include <optional>

namespace snapin {
class AuthenticationDlg;
}

namespace desktop {

// Shows boxes and forms as windows over the main window. With a password from the command line or environment, the
// login needs no dialog as long as it succeeds.
class DesktopUserInterface final : public shell::ShellUserInterface {
public:
    using ShellUserInterface::ShellUserInterface;

    // The owner of all boxes and forms.
    void setMainWindow(QWidget* window) { mainWindow_ = window; }
    void setPassword(wire::WideString password) { password_ = std::move(password); }
    // No user is present: a failed login is not repeated.
    void setUnattended() { unattended_ = true; }
    [[nodiscard]] bool isUnattended() const { return unattended_; }
    // The window in front, over which boxes and forms are shown.
    [[nodiscard]] QWidget* owner() const;
    // Called around each form but the login. If the second one returns true, the form is shown again as it was left.
    std::function<void()> beforeForm;
    std::function<bool(int result)> afterForm;
    // Why the unattended login has failed; empty when it has not.
    [[nodiscard]] const QString& loginFailure() const { return loginFailure_; }

    platform::Answer messageBox(platform::WindowHandle owner, const wire::WideString& text,
                                const wire::WideString& caption, std::uint32_t style) override;
    platform::Answer messageBoxAbout(platform::WindowHandle owner, const wire::WideString& object,
                                     const wire::WideString& text, const wire::WideString& caption,
                                     std::uint32_t style) override;
    int runModal(forms::Form& form, platform::WindowHandle owner) override;
    platform::WindowHandle activeWindow() override;
    void setForeground(platform::WindowHandle window) override;

private:
    bool logIn(snapin::AuthenticationDlg& dialog);
    int show(forms::Form& form) const;

    QPointer<QWidget> mainWindow_;
    std::optional<wire::WideString> password_;
    bool unattended_ = false;
    bool silent_ = false; // messages come from a login without a dialog
    wire::WideString said_;
    QString loginFailure_;
};

} // namespace desktop
