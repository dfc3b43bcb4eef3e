#pragma once

#include "shell/ShellObserver.h"

#include <algorithm>
#include <vector>

namespace shell {

// All observers of a console. An observer may add or remove itself or others while it is being called.
class Observers {
public:
    void add(ShellObserver& observer) { observers_.push_back(&observer); }
    void remove(ShellObserver& observer) { std::erase(observers_, &observer); }

    // Calls tell(observer) for each, in the order in which they were added, and drops what they throw.
    template <class Tell>
    void tell(Tell&& tell) const {
        for (ShellObserver* const observer : std::vector(observers_)) {
            if (std::ranges::find(observers_, observer) == observers_.end()) {
                continue;
            }
            try {
                tell(*observer);
            } catch (...) { // NOLINT(bugprone-empty-catch): nothing that they throw may reach a node
            }
        }
    }

private:
    std::vector<ShellObserver*> observers_;
};

} // namespace shell
