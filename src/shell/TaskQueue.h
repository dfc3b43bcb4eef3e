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

// Keeps, in order, what handlers ask for and may not get before they return: a key press is acted on, and another
// scope item is selected, when the console is back at its own loop.
class TaskQueue {
public:
    // Two refreshes with nothing in between are one: the second would read the same again.
    void add(Task task);
    std::optional<Task> next();
    void clear() { tasks_.clear(); }
    bool empty() const { return tasks_.empty(); }
    // The task that comes next; null when there is none.
    const Task* front() const { return tasks_.empty() ? nullptr : &tasks_.front(); }

    // Called when a task was added; for hosts with a loop of their own.
    std::function<void()> onAdded;

private:
    std::deque<Task> tasks_;
};

} // namespace shell
