#pragma once

#include "client/RequestObserver.h"
#include "client/ServerMessages.h"
#include "hosts/common/WriteCheck.h"
#include "hosts/desktop/activity/ListAge.h"
#include "hosts/desktop/window/LoginKeeper.h"

#include <QTimer>

#include <vector>

namespace desktop {

// Watches what becomes of the console's commands. When the server turns them away, it offers the login and repeats what
// was asked; when a change was refused or did not arrive, it says so, and what was typed can be had back.
//
// Whether the server accepts commands is asked before a dialog opens and before each change, so that a change is sent
// once or not at all. What was only to be read is read again after the login.
class ServerWatch final : public client::RequestObserver, public client::ServerMessages, private shell::ShellObserver {
public:
    // All outlive it.
    ServerWatch(Operations& operations, shell::Observers& observers, ListAge& age, DesktopUserInterface& ui);
    ServerWatch(const ServerWatch&) = delete;
    ServerWatch& operator=(const ServerWatch&) = delete;
    ~ServerWatch() override;

    // Who offers the login; until then, and where no user is present, nothing is asked or told.
    void setLogins(LoginKeeper* logins) { logins_ = logins; }
    // Shows the box for a new name again, with that name in it.
    std::function<void(const Renaming&)> onRenameAgain;

    // The server has turned commands away, and none has been answered since.
    [[nodiscard]] bool isTurnedAway() const { return isTurnedAway_; }
    // The user asks for the login.
    void logIn(const ServerLogin& wanted);

    // For a change that can't be sent now, throws std::runtime_error, which leaves its dialog open.
    void requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) override;
    // The server says why it has refused a change.
    void show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) override;

private:
    class Aside;

    void commandStarted(const client::CommandReport& report) override;
    void commandEnded(const client::CommandReport& report) override;
    void scopeItemOpened(console::ScopeId item, bool open) override;

    [[nodiscard]] bool isOn() const { return logins_ != nullptr && !ui_.isUnattended(); }
    // The text says what becomes of what the user wants to do. False once the user knows that it can't be done now.
    bool admit(const QString& text);
    bool admitsChange();
    bool offerLogin();
    void settle();
    void seeToSilence(const std::vector<console::ScopeId>& opened);
    void seeToForm();
    void beforeForm();
    // True when the form is to be shown again, with what was typed.
    bool afterForm(int result);
    // The first change since the last call that was not carried out, in words; empty without one.
    QString takeRefusal();
    // True when the user wants back what was typed.
    bool tell(const QString& refusal, bool canGiveBack);
    // The same where the server has said why.
    [[nodiscard]] bool offerAgain() const;
    void readAgain(std::vector<console::ScopeId> items);

    Operations& operations_;
    shell::Observers& observers_;
    ListAge& age_;
    DesktopUserInterface& ui_;
    LoginKeeper* logins_ = nullptr;
    common::WriteCheck writes_;
    std::vector<console::ScopeId> opened_; // in this operation
    QString failedChange_;
    QTimer formTimer_;
    int aside_ = 0;           // commands of its own are running
    int running_ = 0;         // commands
    int forms_ = 0;           // open ones
    bool isAdmitted_ = false; // asked for the change that comes next
    bool sawSilence_ = false; // a command that arrived was not answered
    bool wasRefused_ = false; // the last change, and the server has said why
    bool isTurnedAway_ = false;
    bool isDeclined_ = false; // the user did not want to log in for what was to be read
};

} // namespace desktop
