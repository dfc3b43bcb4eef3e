#include "shell/TaskQueue.h"

#include <utility>

namespace shell {

void TaskQueue::add(Task task) {
    if (task.kind == Task::Kind::refresh && !tasks_.empty() && tasks_.back().kind == Task::Kind::refresh) {
        return;
    }
    tasks_.push_back(std::move(task));
    if (onAdded) {
        onAdded();
    }
}

std::optional<Task> TaskQueue::next() {
    if (tasks_.empty()) {
        return std::nullopt;
    }
    std::optional<Task> task(std::move(tasks_.front()));
    tasks_.pop_front();
    return task;
}

} // namespace shell
