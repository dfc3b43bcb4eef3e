#include "hosts/desktop/window/ServerWatch.h"

#include "forms/Form.h"
#include "hosts/common/Admission.h"
#include "hosts/desktop/activity/WaitIndicator.h"
#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/window/Question.h"
#include "wire/Cancelled.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <utility>

namespace desktop {
namespace {

const QString titleOfChange = QStringLiteral("Not Changed");
const QString openAgain = QStringLiteral("Open again with what you typed");

// Most changes have no reply; those that have one are told from questions by their names.
bool isChange(const client::CommandReport& report) {
    constexpr std::array<std::string_view, 9> verbs{"Add",    "Create", "Delete", "Move", "Remove",
                                                    "Rename", "Set",    "Update", "Write"};
    return std::ranges::any_of(verbs, [&](std::string_view verb) { return report.name.starts_with(verb); });
}

} // namespace

// Runs commands that are not the console's.
class ServerWatch::Aside {
public:
    explicit Aside(ServerWatch& watch) : watch_(watch) { watch_.age_.setAside(++watch_.aside_ > 0); }
    Aside(const Aside&) = delete;
    Aside& operator=(const Aside&) = delete;
    ~Aside() { watch_.age_.setAside(--watch_.aside_ > 0); }

private:
    ServerWatch& watch_;
};

ServerWatch::ServerWatch(Operations& operations, shell::Observers& observers, ListAge& age, DesktopUserInterface& ui)
    : operations_(operations), observers_(observers), age_(age), ui_(ui) {
    formTimer_.setSingleShot(true);
    formTimer_.callOnTimeout([this] { seeToForm(); });
    operations_.onSettled = [this] { settle(); };
    operations_.admitsChange = [this] { return admitsChange(); };
    ui_.beforeForm = [this] { beforeForm(); };
    ui_.afterForm = [this](int result) { return afterForm(result); };
    observers_.add(*this);
}

ServerWatch::~ServerWatch() {
    observers_.remove(*this);
    ui_.beforeForm = nullptr;
    ui_.afterForm = nullptr;
    operations_.onSettled = nullptr;
    operations_.admitsChange = nullptr;
}

void ServerWatch::requestMade(const protocol::Command& command, std::span<const std::uint8_t> data) {
    if (aside_ > 0 || !isOn()) {
        return;
    }
    const bool isSilent = command.reply == protocol::ReplyShape::none;
    if (isSilent && !std::exchange(isAdmitted_, false) &&
        !admit(QStringLiteral("Nothing was changed. What you have typed stays here until it can be sent."))) {
        throw std::runtime_error("The server does not accept this change now");
    }
    std::optional<Aside> aside;
    if (isSilent) {
        aside.emplace(*this); // it is looked at before and after it is sent
    }
    writes_.requestMade(command, data);
}

void ServerWatch::show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) {
    wasRefused_ = aside_ == 0;
    ui_.messageBox(0, text, caption, style);
}

bool ServerWatch::admit(const QString& text) {
    const Aside aside(*this);
    switch (common::askForAdmission()) {
    case common::Admission::admitted:
        return true;
    case common::Admission::turnedAway:
        return offerLogin();
    default:
        warn(ui_.owner(), titleOfChange,
             QStringLiteral("The server %1 can't be reached.\n\n%2").arg(LoginKeeper::current().host, text));
        return false;
    }
}

bool ServerWatch::admitsChange() {
    if (!isOn()) {
        return true;
    }
    isAdmitted_ = admit(QStringLiteral("Nothing was changed."));
    if (const Renaming* const renaming = operations_.renaming(); !isAdmitted_ && renaming != nullptr && onRenameAgain) {
        operations_.later([this, again = *renaming] { onRenameAgain(again); });
    }
    return isAdmitted_;
}

bool ServerWatch::offerLogin() {
    const Aside aside(*this);
    isTurnedAway_ = true;
    if (!logins_->offer()) {
        return false;
    }
    isTurnedAway_ = false;
    isDeclined_ = false;
    return true;
}

void ServerWatch::logIn(const ServerLogin& wanted) {
    const Aside aside(*this);
    if (logins_ != nullptr && logins_->logIn(wanted)) {
        isTurnedAway_ = false;
        isDeclined_ = false;
        readAgain({});
    }
}

void ServerWatch::commandStarted(const client::CommandReport& report) {
    ++running_;
    if (aside_ == 0 && isChange(report)) {
        wasRefused_ = false;
    }
}

void ServerWatch::commandEnded(const client::CommandReport& report) {
    running_ = std::max(running_ - 1, 0);
    if (aside_ > 0) {
        return;
    }
    if (report.bytesReceived > 0) {
        isTurnedAway_ = false;
        isDeclined_ = false;
    }
    if (report.outcome != client::CommandOutcome::failed) {
        return;
    }
    if (isChange(report) && failedChange_.isEmpty()) {
        failedChange_ = WaitIndicator::spoken(toQString(report.name));
    }
    if (report.connected && report.bytesReceived == 0) {
        sawSilence_ = true;
        if (forms_ > 0) {
            formTimer_.start(0);
        }
    }
}

void ServerWatch::scopeItemOpened(console::ScopeId item, bool open) {
    if (open) {
        opened_.push_back(item);
    }
}

// Runs at the end of each operation.
void ServerWatch::settle() {
    isAdmitted_ = false;
    const auto opened = std::exchange(opened_, {});
    if (!isOn()) {
        return;
    }
    const QString refusal = takeRefusal();
    seeToSilence(opened);
    const Renaming* const renaming = operations_.renaming();
    if (!refusal.isEmpty() && tell(refusal, renaming != nullptr && onRenameAgain)) {
        operations_.later([this, again = *renaming] { onRenameAgain(again); });
    }
}

void ServerWatch::seeToSilence(const std::vector<console::ScopeId>& opened) {
    if (!std::exchange(sawSilence_, false) || isDeclined_) {
        return;
    }
    const Aside aside(*this);
    if (common::askForAdmission() != common::Admission::turnedAway) {
        return;
    }
    if (offerLogin()) {
        readAgain(opened);
    } else {
        isDeclined_ = true;
    }
}

// A dialog is open, so the operation goes on for as long as the user likes.
void ServerWatch::seeToForm() {
    if (forms_ == 0 || running_ > 0 || !std::exchange(sawSilence_, false)) {
        return;
    }
    const Aside aside(*this);
    if (common::askForAdmission() == common::Admission::turnedAway && offerLogin()) {
        failedChange_.clear();
        warn(ui_.owner(), QStringLiteral("Login"),
             QStringLiteral("You are logged in again. What you did last in this dialog has not reached the server: "
                            "please do it once more."));
    }
}

void ServerWatch::readAgain(std::vector<console::ScopeId> items) {
    operations_.later([this, items = std::move(items)] {
        operations_.perform([&](shell::Shell& console) { return console.reread(items); });
    });
}

void ServerWatch::beforeForm() {
    if (isOn()) {
        const Aside aside(*this);
        if (common::askForAdmission() == common::Admission::turnedAway) {
            offerLogin(); // without it the dialog says what it can't read
        }
    }
    ++forms_;
    wasRefused_ = false;
}

bool ServerWatch::afterForm(int result) {
    --forms_;
    if (!isOn()) {
        return false;
    }
    const QString refusal = takeRefusal();
    const bool wasConfirmed = result != forms::idCancel;
    if (std::exchange(wasRefused_, false)) {
        return wasConfirmed && offerAgain();
    }
    return !refusal.isEmpty() && tell(refusal, wasConfirmed);
}

QString ServerWatch::takeRefusal() {
    const Aside aside(*this);
    std::optional<std::string> refused;
    try {
        refused = writes_.notCarriedOut();
    } catch (const wire::Cancelled&) { // NOLINT(bugprone-empty-catch): the user does not want to know
    }
    writes_.forget();
    const QString failed = std::exchange(failedChange_, {});
    return refused ? WaitIndicator::spoken(toQString(std::string_view(*refused))) : failed;
}

bool ServerWatch::offerAgain() const {
    return warn(ui_.owner(), titleOfChange, QStringLiteral("What you have typed was not saved."), openAgain);
}

bool ServerWatch::tell(const QString& refusal, bool canGiveBack) {
    return warn(ui_.owner(), titleOfChange,
                QStringLiteral("The server did not accept this change: %1.\n\nIt gives no reason. Often the name is "
                               "already in use, or somebody else has changed or deleted the same thing.")
                    .arg(refusal),
                canGiveBack ? openAgain : QString());
}

} // namespace desktop
