#include "hosts/ctl/Session.h"

#include "hosts/common/QuietOutput.h"
#include "hosts/ctl/Password.h"
#include "hosts/ctl/PrintableText.h"
#include "snapin/AuthenticationDlg.h"
#include "snapin/LoginThread.h"

namespace ctl {
namespace {

// The longest name or password that a login can carry, in UTF-16 units: a block of the key's size holds no more.
constexpr std::size_t longestCredential = 122;

wire::WideString checked(wire::WideString credential, const std::string& what) {
    if (credential.size() > longestCredential) {
        throw Failure(ExitStatus::noConnection, "The " + what + " is longer than the " +
                                                    std::to_string(longestCredential) + " characters of a login");
    }
    return credential;
}

} // namespace

Session::Session(const Options& options, std::ostream& errors)
    : options_(options),
      ui_(tasks_, errors),
      settings_(options.settings ? *options.settings : common::IniSettingsStore::defaultPath()),
      platform_{.ui = ui_,
                .settings = settings_,
                .hooks = {.commands = &watch_, .wait = &watch_, .messages = &refusals_, .requests = &gate_},
                .productVersion = {},
                .locale = locale_,
                .environment = environment_,
                .launcher = launcher_} {
    observers_.add(failures_);
    if (options.activity) {
        observers_.add(activity_.emplace(*options.activity));
    }
}

wire::WideString Session::value(const std::optional<std::string>& given, std::string_view name,
                                std::string_view option) const {
    const auto value = given ? std::optional(wire::toWide(*given)) : settings_.read(name);
    if (!value || value->empty()) {
        throw Failure(ExitStatus::noConnection,
                      "The server or account to log in to is not known: give " + std::string(option));
    }
    return *value;
}

StepList Session::loginSteps(const wire::WideString& server, const wire::WideString& port) const {
    const auto user = checked(value(options_.user, "UserName", "--user NAME"), "user name");
    const auto domain = checked(
        options_.domain ? wire::toWide(*options_.domain) : settings_.read("DomainName").value_or(u""), "domain");
    const auto account = shown(user) + " at " + shown(server) + ":" + shown(port);
    const auto password = checked(obtainPassword(options_.passwordFile, account), "password");
    const auto step = [](const char16_t* label, const wire::WideString& text) {
        return Step{.kind = Step::Kind::set, .label = label, .value = text, .written = "the login"};
    };
    return StepList({step(u"Server Name", server), step(u"Port", port), step(u"User Name", user),
                     step(u"Password", password), step(u"Domain", domain),
                     Step{.kind = Step::Kind::press, .label = u"Login", .written = "the login"}});
}

wire::WideString Session::logIn() {
    if (loggedIn_) {
        return *loggedIn_;
    }
    const auto server = value(options_.server, "ServerName", "--server HOST");
    const auto port =
        value(options_.port ? std::optional(std::to_string(*options_.port)) : std::nullopt, "ServerPort", "--port N");
    ui_.setSteps(loginSteps(server, port));
    snapin::AuthenticationDlg dialog(platform_);
    {
        const common::QuietOutput quiet; // the login prints something to standard output, which is for data here
        ui_.runModal(dialog, 0);
    }
    failures_.forget();
    try {
        ui_.finish();
    } catch (const Failure& failure) {
        throw Failure(ExitStatus::noConnection,
                      std::string(failure.what()) + " (" + shown(server) + ":" + shown(port) + ")");
    }
    snapin::loginDone = 1;
    loggedIn_ = dialog.statusText();
    ui_.beforeStep = [this] { checkCommands(); };
    return *loggedIn_;
}

shell::Shell& Session::start() {
    logIn();
    console_.reset();
    tasks_.clear();
    auto& shell = console_.emplace(platform_, tasks_, observers_).shell;
    if (!shell.start()) {
        throw Failure(ExitStatus::refused, "The console did not start");
    }
    check();
    return shell;
}

void Session::beginCommand() {
    failures_.forget();
    writes_.forget();
    gate_.closeForWrites(false);
    ui_.begin();
}

void Session::checkCommands() {
    const auto write = writes_.notCarriedOut();
    failures_.check();
    if (write) {
        throw Failure(ExitStatus::refused, "The server did not carry out the command " + *write);
    }
}

void Session::check() {
    checkCommands();
    ui_.finish();
}

} // namespace ctl
