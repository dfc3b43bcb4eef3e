#pragma once

#include "hosts/common/SystemEnvironment.h"
#include "hosts/common/SystemLauncher.h"
#include "hosts/common/SystemLocale.h"
#include "hosts/common/TwoSidedSnapIn.h"
#include "hosts/desktop/activity/ActivityLog.h"
#include "hosts/desktop/activity/ListAge.h"
#include "hosts/desktop/window/ServerWatch.h"
#include "platform/Platform.h"
#include "shell/CommandWatch.h"
#include "snapin/CPrintComponent.h"
#include "snapin/Print.h"

namespace desktop {

// The console with everything that it needs except windows.
class Session {
public:
    // Outlives it.
    explicit Session(platform::SettingsStore& settings);

    shell::Observers& observers() { return observers_; }
    DesktopUserInterface& ui() { return ui_; }
    Operations& operations() { return operations_; }
    const shell::Shell& shell() const { return shell_; }
    ListAge& age() { return age_; }
    ServerWatch& watch() { return serverWatch_; }
    platform::Platform& platform() { return platform_; }
    ActivityLog& activity() { return activity_; }
    void setMeasure(std::function<std::int32_t(wire::WideStringView)> measure) {
        shell_.setMeasure(std::move(measure));
    }

private:
    shell::Observers observers_;
    shell::TaskQueue tasks_;
    ActivityLog activity_{observers_};
    shell::CommandWatch watch_{observers_};
    DesktopUserInterface ui_{tasks_};
    common::SystemLocale locale_;
    common::SystemEnvironment environment_;
    common::SystemLauncher launcher_;
    platform::Platform platform_;
    snapin::Print print_{platform_};
    common::TwoSidedSnapIn<snapin::Print, snapin::CPrintComponent> snapIn_{print_};
    shell::Shell shell_{snapIn_, tasks_, observers_};
    Operations operations_{shell_, tasks_};
    ListAge age_{operations_, observers_};
    ServerWatch serverWatch_{operations_, observers_, age_, ui_};
};

} // namespace desktop
