#pragma once

#include "shell/Shell.h"

#include <QTimer>

#include <deque>
#include <functional>
#include <optional>
#include <utility>

namespace desktop {

// A new name that the user has typed for an item or a row.
struct Renaming {
    shell::Target target;
    wire::WideString name;
};

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
    [[nodiscard]] bool busy() const { return held_ || shell_.busy(); }

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
    // The same for work that changes something on the server: does nothing when the server would not accept it.
    template <class Work>
    bool performChange(Work&& work) {
        return isAdmitted() && perform(std::forward<Work>(work));
    }

    // Runs the work from the event loop as soon as no operation is running, in the order of the calls.
    void later(std::function<void()> work);

    // Performs the work like later.
    void request(std::function<bool(shell::Shell&)> work);
    // Gives the selected item or row a new name, like later; nothing happens when another one is selected by then.
    void rename(const Renaming& renaming);
    // Moves something to an item of the tree, like later.
    void drop(const shell::Target& source, console::ScopeId target);
    // Called to do so instead.
    std::function<void(const shell::Target& source, console::ScopeId target)> onDrop;
    // What is being renamed at the moment; null for nothing.
    [[nodiscard]] const Renaming* renaming() const { return renaming_ ? &*renaming_ : nullptr; }

    // Called around each operation.
    std::function<void()> onBegin;
    std::function<void()> onEnd;
    // Called after onEnd, while no other operation can start.
    std::function<void()> onSettled;
    // Called before each change, while no other operation can start: whether the server accepts changes now.
    std::function<bool()> admitsChange;

private:
    bool isAdmitted();
    void ended();
    void flush();

    shell::Shell& shell_;
    shell::TaskQueue& tasks_;
    std::deque<std::function<void()>> waiting_;
    QTimer timer_;
    std::uint64_t count_ = 0;
    std::optional<Renaming> renaming_;
    bool held_ = false;
};

} // namespace desktop
