#pragma once

#include "console/ItemFields.h"

#include <cstddef>
#include <cstdint>
#include <deque>
#include <functional>
#include <optional>

namespace shell {

// What is to be done once the running handler has returned.
struct Task {
    enum class Kind : std::uint8_t {
        refresh,         // of the current view
        selectScopeItem, // scopeId
        work,            // a thread's work
        close            // the end of the console
    };

    Kind kind = Kind::refresh;
    console::ScopeId scopeId = 0;
    std::function<void()> work{};
};

// Keeps, in order, what handlers ask for but must not happen before they return: a key press is acted on, and another
// scope item is selected, when the console is back in its own loop.
class TaskQueue {
public:
    // Two refreshes in a row are merged: the second would read the same again.
    void add(Task task);
    std::optional<Task> next();
    void clear() { tasks_.clear(); }
    [[nodiscard]] bool empty() const { return tasks_.empty(); }
    // The next task; null when there is none.
    [[nodiscard]] const Task* front() const { return tasks_.empty() ? nullptr : &tasks_.front(); }

    // Called when a task was added; for hosts with a loop of their own.
    std::function<void()> onAdded;

private:
    std::deque<Task> tasks_;
};

} // namespace shell
