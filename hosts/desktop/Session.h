#pragma once

#include "console/Platform.h"
#include "console/SystemLocale.h"
#include "hosts/desktop/ActivityLog.h"
#include "hosts/desktop/DesktopUserInterface.h"
#include "hosts/desktop/ListAge.h"
#include "shell/CommandWatch.h"
#include "shell/RefusalBox.h"
#include "shell/SnapInOf.h"
#include "snapin/CPrintComponent.h"
#include "snapin/Print.h"

namespace desktop {

// The console with everything that it needs, but its windows.
class Session {
public:
    // Outlives it.
    explicit Session(console::SettingsStore& settings);

    shell::Observers& observers() { return observers_; }
    DesktopUserInterface& ui() { return ui_; }
    Operations& operations() { return operations_; }
    const shell::Shell& shell() const { return shell_; }
    ListAge& age() { return age_; }
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
    shell::RefusalBox refusals_{ui_};
    console::SystemLocale locale_;
    console::Platform platform_;
    snapin::Print print_{platform_};
    shell::SnapInOf<snapin::Print, snapin::CPrintComponent> snapIn_{print_};
    shell::Shell shell_{snapIn_, tasks_, observers_};
    Operations operations_{shell_, tasks_};
    ListAge age_{operations_, observers_};
};

} // namespace desktop
