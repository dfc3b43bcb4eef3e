#pragma once

#include "hosts/common/IniSettingsStore.h"
#include "hosts/common/SystemEnvironment.h"
#include "hosts/common/SystemLauncher.h"
#include "hosts/common/SystemLocale.h"
#include "hosts/common/TwoSidedSnapIn.h"
#include "hosts/common/WriteCheck.h"
#include "hosts/ctl/Activity.h"
#include "hosts/ctl/CtlUserInterface.h"
#include "hosts/ctl/FailureWatch.h"
#include "hosts/ctl/Options.h"
#include "hosts/ctl/ReadOnlyGate.h"
#include "platform/Platform.h"
#include "platform/RefusalBox.h"
#include "shell/CommandWatch.h"
#include "shell/Observers.h"
#include "shell/Shell.h"
#include "shell/TaskQueue.h"
#include "snapin/CPrintComponent.h"
#include "snapin/Print.h"

#include <memory>
#include <optional>
#include <ostream>
#include <string_view>

namespace ctl {

// The console during one command line or one script.
class Session {
public:
    // Both outlive it. Throws Failure when the activity file can't be written.
    Session(const Options& options, std::ostream& errors);

    // Logs in with the product's own dialog, once, and returns its status text. Throws Failure (no connection).
    wire::WideString logIn();
    // Logs in and starts a fresh console.
    shell::Shell& start();
    // Starts the next command of a script, and forgets everything about the previous one.
    void beginCommand();
    // Throws Failure when a command has failed or the server did not carry it out, or a question was not answered or a
    // step not used.
    void check();

    CtlUserInterface& ui() { return ui_; }
    // Until the next command, commands that write are refused.
    void forbidWrites() { gate_.closeForWrites(true); }

private:
    // The given value, or else that of the settings with the name. Throws Failure (no connection) without either.
    wire::WideString value(const std::optional<std::string>& given, std::string_view name,
                           std::string_view option) const;
    struct Console {
        Console(platform::Platform& platform, shell::TaskQueue& tasks, shell::Observers& observers)
            : print(platform), shell(snapIn, tasks, observers) {}

        snapin::Print print;
        common::TwoSidedSnapIn<snapin::Print, snapin::CPrintComponent> snapIn{print};
        shell::Shell shell;
    };

    // Throws Failure when a command has failed, or the server did not carry it out.
    void checkCommands();
    StepList loginSteps(const wire::WideString& server, const wire::WideString& port) const;

    const Options& options_;
    shell::Observers observers_;
    shell::TaskQueue tasks_;
    std::optional<Activity> activity_;
    FailureWatch failures_;
    common::WriteCheck writes_;
    ReadOnlyGate gate_{writes_};
    shell::CommandWatch watch_{observers_};
    CtlUserInterface ui_;
    platform::RefusalBox refusals_{ui_};
    common::IniSettingsStore settings_;
    common::SystemLocale locale_;
    common::SystemEnvironment environment_;
    common::SystemLauncher launcher_;
    platform::Platform platform_;
    std::optional<wire::WideString> loggedIn_; // the status text of the login
    std::optional<Console> console_;
};

} // namespace ctl
