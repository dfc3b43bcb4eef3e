#pragma once

#include "forms/FormObserver.h"

#include <utility>
#include <vector>

namespace forms {

// A host that records what the form reports.
class RecordingFormObserver final : public FormObserver {
public:
    std::vector<std::pair<Control*, Aspect>> changes;
    int titles = 0;
    int ends = 0;

    void controlChanged(Control& control, Aspect aspect) override { changes.emplace_back(&control, aspect); }
    void titleChanged(Form& /*form*/) override { ++titles; }
    void formEnded(Form& /*form*/) override { ++ends; }
};

} // namespace forms
