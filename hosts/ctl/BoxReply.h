#pragma once

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/Step.h"

#include <optional>
#include <string>

namespace forms {
class Form;
}

// How the steps of a command line deal with boxes and forms; the same for every host.
namespace ctl {

// The reply to a message box.
struct BoxReply {
    platform::Answer answer = platform::Answer::ok;
    bool takesStep = false;         // the next step answers it
    std::string said;               // a message to pass on; empty for none
    std::optional<Failure> failure; // of the command
};

// The text of a question, followed by the name of what it is about.
wire::WideString withObject(wire::WideStringView text, wire::WideStringView object);

// The reply that the next step gives; the step is null at the end. A box that can't be answered gets the answer that
// changes nothing. A box with only an OK is a message: unless a step answers it, it makes the command fail; with a
// warning or error icon it always does.
BoxReply replyTo(const Step* next, wire::WideStringView text, wire::WideStringView caption, std::uint32_t style);

// The failure for a form that is still open after the last step.
Failure leftOpen(forms::Form& form);
// The failure for an answer without a question.
Failure notAsked(const Step& step);
// The failure for a step that was not used.
Failure leftOver(const Step& step);

} // namespace ctl
