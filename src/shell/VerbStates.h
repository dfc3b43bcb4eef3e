#pragma once

#include "console/IConsoleVerb.h"

#include <bitset>

namespace shell {

// Which verbs the current selection offers.
class VerbStates final : public console::IConsoleVerb {
public:
    console::Result SetVerbState(console::Verb verb, console::VerbState state, bool flag) override;
    console::Result GetVerbState(console::Verb verb, console::VerbState state, bool& flag) override;

    [[nodiscard]] bool offers(console::Verb verb) const;
    // A new selection starts without verbs.
    void reset() { offered_.reset(); }

    // True when the verbs have changed since the last call.
    bool takeChange();

private:
    std::bitset<16> offered_;
    std::bitset<16> told_;
};

} // namespace shell
