#include "hosts/desktop/activity/Operations.h"

#include <utility>

namespace desktop {

Operations::Operations(shell::Shell& shell, shell::TaskQueue& tasks) : shell_(shell), tasks_(tasks) {
    timer_.setSingleShot(true);
    timer_.callOnTimeout([this] { flush(); });
    tasks_.onAdded = [this] {
        if (!busy()) {
            later([this] { perform([](shell::Shell& console) { return console.drain(); }); });
        }
    };
}

Operations::~Operations() {
    tasks_.onAdded = nullptr;
}

void Operations::later(std::function<void()> work) {
    waiting_.push_back(std::move(work));
    if (!busy()) {
        timer_.start(0);
    }
}

void Operations::ended() {
    if (onEnd) {
        onEnd();
    }
    if (!waiting_.empty()) {
        timer_.start(0);
    }
}

void Operations::flush() {
    while (!busy() && !waiting_.empty()) {
        const auto work = std::move(waiting_.front());
        waiting_.pop_front();
        work();
    }
}

} // namespace desktop
