#pragma once

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/Step.h"

#include <optional>
#include <string>

namespace forms {
class Form;
}

// How the steps of a command line get on with boxes and forms; the same for every host.
namespace ctl {

// What becomes of a message box.
struct BoxReply {
    platform::Answer answer = platform::Answer::ok;
    bool takesStep = false;         // the next step has answered it
    std::string said;               // a statement that is passed on; empty for none
    std::optional<Failure> failure; // of the command
};

// The reply of the next step, which is null at the end of the steps. A box that can't be answered gets the answer that
// changes nothing. One that only has an OK is a statement: unless a step stands for it, it is the failure of the
// command; with a warning or an error on it, always.
BoxReply replyTo(const Step* next, wire::WideStringView text, wire::WideStringView caption, std::uint32_t style);

// That the steps are over and the form is not.
Failure leftOpen(forms::Form& form);
// That an answer was given and no question asked.
Failure notAsked(const Step& step);
// That a step was left over.
Failure leftOver(const Step& step);

} // namespace ctl
