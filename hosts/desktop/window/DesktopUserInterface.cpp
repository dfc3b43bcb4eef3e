#include "hosts/desktop/window/DesktopUserInterface.h"

#include "hosts/desktop/forms/FormDialog.h"
#include "hosts/desktop/forms/MessageBox.h"
#include "hosts/desktop/look/Text.h"
#include "snapin/AuthenticationDlg.h"

#include <QApplication>

#include <utility>

namespace desktop {

QWidget* DesktopUserInterface::owner() const {
    QWidget* const modal = QApplication::activeModalWidget();
    return modal != nullptr ? modal : mainWindow_.data();
}

platform::Answer DesktopUserInterface::messageBox(platform::WindowHandle owner, const wire::WideString& text,
                                                  const wire::WideString& caption, std::uint32_t style) {
    return messageBoxAbout(owner, {}, text, caption, style);
}

platform::Answer DesktopUserInterface::messageBoxAbout(platform::WindowHandle /*owner*/, const wire::WideString& object,
                                                       const wire::WideString& text, const wire::WideString& caption,
                                                       std::uint32_t style) {
    if (std::exchange(silent_, false)) {
        said_ = text;
        return platform::Answer::ok;
    }
    return showMessageBox(owner(), text, caption, style, object);
}

int DesktopUserInterface::runModal(forms::Form& form, platform::WindowHandle /*owner*/) {
    auto* const login = dynamic_cast<snapin::AuthenticationDlg*>(&form);
    if (login == nullptr) {
        return show(form);
    }
    if (!password_ && !unattended_) {
        return runForm(form, owner());
    }
    if (logIn(*login)) {
        silent_ = true; // the login was not interactive, so its success is not reported
        return form.result();
    }
    loginFailure_ = said_.empty() ? QStringLiteral("There is no password") : toQString(said_);
    if (!unattended_) {
        showMessageBox(owner(), said_, u"Warning", platform::boxStyle::iconWarning);
        return runForm(form, owner());
    }
    form.userCancelled();
    return form.result();
}

int DesktopUserInterface::show(forms::Form& form) const {
    for (;;) {
        if (beforeForm) {
            beforeForm();
        }
        const int result = runForm(form, owner());
        if (!afterForm || !afterForm(result)) {
            return result;
        }
        form.resume();
    }
}

bool DesktopUserInterface::logIn(snapin::AuthenticationDlg& dialog) {
    dialog.open();
    if (const auto password = std::exchange(password_, std::nullopt)) {
        dialog.password.userTyped(*password);
        silent_ = true;
        dialog.okButton().userPressed();
        silent_ = false;
    }
    return dialog.ended();
}

platform::WindowHandle DesktopUserInterface::activeWindow() {
    return mainWindow_ != nullptr ? 1 : 0;
}

void DesktopUserInterface::setForeground(platform::WindowHandle /*window*/) {
    if (mainWindow_ != nullptr) {
        mainWindow_->raise();
        mainWindow_->activateWindow();
    }
}

} // namespace desktop
