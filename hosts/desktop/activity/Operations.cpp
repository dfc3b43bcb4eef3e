#include "hosts/desktop/activity/Operations.h"

#include <QScopedValueRollback>

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

void Operations::request(std::function<bool(shell::Shell&)> work) {
    later([this, work = std::move(work)] { perform(work); });
}

void Operations::rename(const Renaming& renaming) {
    later([this, renaming] {
        const QScopedValueRollback<std::optional<Renaming>> now(renaming_, renaming);
        performChange([&](shell::Shell& console) {
            return console.selection() == renaming.target && console.rename(renaming.name);
        });
    });
}

void Operations::drop(const shell::Target& source, console::ScopeId target) {
    later([this, source, target] {
        if (onDrop) {
            onDrop(source, target);
        } else {
            performChange([&](shell::Shell& console) { return console.drop(source, target); });
        }
    });
}

bool Operations::isAdmitted() {
    if (busy()) {
        return false;
    }
    bool admitted = true;
    if (admitsChange) {
        const QScopedValueRollback held(held_, true);
        admitted = admitsChange();
    }
    if (!waiting_.empty()) {
        timer_.start(0);
    }
    return admitted;
}

void Operations::ended() {
    if (onEnd) {
        onEnd();
    }
    if (onSettled) {
        const QScopedValueRollback held(held_, true);
        onSettled();
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
