#pragma once

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/StepList.h"
#include "shell/ShellUserInterface.h"

#include <functional>
#include <optional>
#include <ostream>
#include <string>
#include <utility>

namespace ctl {

// The user at the command line: forms and questions are answered by the given steps. Anything else gets the answer that
// changes nothing, and is remembered as the failure of the command.
//
// A box with only an OK is a message: it goes to standard error. Unless an --answer answers it, it makes the command
// fail; with a warning or error icon it always does.
class CtlUserInterface final : public shell::ShellUserInterface {
public:
    // Both outlive this.
    CtlUserInterface(shell::TaskQueue& tasks, std::ostream& errors) : ShellUserInterface(tasks), errors_(errors) {}

    void setSteps(StepList steps) { steps_ = std::move(steps); }
    // Starts a new command, and forgets everything about the previous one.
    void begin() {
        steps_ = StepList();
        failure_.reset();
        reader_ = nullptr;
        hasRead_ = false;
    }
    // Called with the form that is open after the last step; that form and those below it are then cancelled.
    void setReader(std::function<void(forms::Form&)> reader) { reader_ = std::move(reader); }
    // Whether the reader was called.
    [[nodiscard]] bool hasRead() const { return hasRead_; }
    // Called before a step is taken; a Failure that it throws ends the steps.
    std::function<void()> beforeStep;

    // Tells the user something that does not make the command fail, in one line.
    void note(const std::string& line) { errors_ << "vantrelctl: " << line << '\n'; }

    // Throws the failure, if there was one, or a failure for unused steps.
    void finish();

    platform::Answer messageBox(platform::WindowHandle owner, const wire::WideString& text,
                                const wire::WideString& caption, std::uint32_t style) override;
    platform::Answer messageBoxAbout(platform::WindowHandle owner, const wire::WideString& object,
                                     const wire::WideString& text, const wire::WideString& caption,
                                     std::uint32_t style) override;
    int runModal(forms::Form& form, platform::WindowHandle owner) override;

private:
    void fail(const Failure& failure);
    // Whether the next step may be taken.
    bool goesOn();
    void drive(forms::Form& form);

    std::ostream& errors_;
    StepList steps_;
    std::optional<Failure> failure_;
    std::function<void(forms::Form&)> reader_;
    bool hasRead_ = false;
};

} // namespace ctl
