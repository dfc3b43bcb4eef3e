#pragma once

#include "shell/Shell.h"

#include <QTimer>

#include <deque>
#include <functional>

namespace desktop {

// The only way from the windows to the console, which does one thing at a time: an operation starts only when none is
// running, and whatever comes up in the meantime waits for its end.
class Operations {
public:
    // Both outlive it.
    Operations(shell::Shell& shell, shell::TaskQueue& tasks);
    Operations(const Operations&) = delete;
    Operations& operator=(const Operations&) = delete;
    ~Operations();

    [[nodiscard]] const shell::Shell& shell() const { return shell_; }
    [[nodiscard]] bool busy() const { return shell_.busy(); }

    // How many have been started.
    [[nodiscard]] std::uint64_t count() const { return count_; }

    // Runs work(shell) now. False while another operation runs, and when the work returns false.
    template <class Work>
    bool perform(Work&& work) {
        if (busy()) {
            return false;
        }
        ++count_;
        if (onBegin) {
            onBegin();
        }
        const bool done = std::invoke(work, shell_);
        ended();
        return done;
    }

    // Runs the work from the event loop as soon as no operation is running, in the order of the calls.
    void later(std::function<void()> work);

    // Called around each operation.
    std::function<void()> onBegin;
    std::function<void()> onEnd;

private:
    void ended();
    void flush();

    shell::Shell& shell_;
    shell::TaskQueue& tasks_;
    std::deque<std::function<void()>> waiting_;
    QTimer timer_;
    std::uint64_t count_ = 0;
};

} // namespace desktop
