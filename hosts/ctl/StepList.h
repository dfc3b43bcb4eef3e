#pragma once

#include "hosts/ctl/Step.h"

#include <deque>
#include <vector>

namespace ctl {

// The remaining steps of a command line, in the order given.
class StepList {
public:
    explicit StepList(std::vector<Step> steps = {}) : steps_(steps.begin(), steps.end()) {}

    [[nodiscard]] const Step* next() const { return steps_.empty() ? nullptr : &steps_.front(); }
    void done() { steps_.pop_front(); }
    [[nodiscard]] const std::deque<Step>& left() const { return steps_; }

private:
    std::deque<Step> steps_;
};

} // namespace ctl
