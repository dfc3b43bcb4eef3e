#pragma once

#include "platform/UserInterface.h"
#include "shell/TaskQueue.h"

namespace shell {

// The part of a host's user interface that needs no screen: key presses, threads and the end of the console become
// tasks of the shell. A host adds message boxes and forms.
class ShellUserInterface : public platform::UserInterface {
public:
    // The queue outlives this.
    explicit ShellUserInterface(TaskQueue& tasks) : tasks_(tasks) {}

    // A sequence becomes one refresh of the current view, whatever its keys.
    void press(std::span<const platform::Key> keys) override;
    // The work is done on the shell's own thread, when the running handler has returned.
    void startThread(std::function<void()> work) override;
    platform::WindowHandle activeWindow() override { return 0; }
    void setForeground(platform::WindowHandle /*window*/) override {}
    void close(platform::WindowHandle window) override;

private:
    TaskQueue& tasks_;
};

} // namespace shell
