#pragma once

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/StepList.h"
#include "shell/ShellUserInterface.h"

#include <functional>
#include <optional>
#include <ostream>

namespace ctl {

// The person at the command line: forms and questions are answered by the steps that were given. What can't be answered
// is answered with the least, and remembered as the failure of the command.
//
// A box that only has an OK is a statement: it goes to standard error. Unless an --answer stands for it, it is the
// failure of the command; with a warning or an error on it, always.
class CtlUserInterface final : public shell::ShellUserInterface {
public:
    // Both outlive this.
    CtlUserInterface(shell::TaskQueue& tasks, std::ostream& errors) : ShellUserInterface(tasks), errors_(errors) {}

    void setSteps(StepList steps) { steps_ = std::move(steps); }
    // Another command begins: what the one before has left behind is forgotten.
    void begin() {
        steps_ = StepList();
        failure_.reset();
    }
    // Called before a step is taken; a Failure that it throws ends the steps.
    std::function<void()> beforeStep;

    // Throws the failure, if there was one, or for steps that were not used.
    void finish();

    platform::Answer messageBox(platform::WindowHandle owner, const wire::WideString& text,
                                const wire::WideString& caption, std::uint32_t style) override;
    int runModal(forms::Form& form, platform::WindowHandle owner) override;

private:
    void fail(const Failure& failure);
    // Whether a step may be taken.
    bool goesOn();
    void drive(forms::Form& form);

    std::ostream& errors_;
    StepList steps_;
    std::optional<Failure> failure_;
};

} // namespace ctl
