#pragma once

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/Step.h"

#include <cstddef>

namespace forms {
class Control;
class Form;
class TextControl;
} // namespace forms

// Which control of a form a step refers to, and why the control refuses it; the same for every host.
namespace ctl {

// The control, on the page in front, enabled and visible. Throws Failure (refused), listing the choices when the name
// matches no control or more than one.
forms::Control& reachableControl(forms::Form& form, const Step& step);

// The row that a name refers to: by its text in the first column that contains it, or by its number. Throws Failure
// (refused) likewise.
std::size_t placeAmong(const forms::Control& control, const wire::WideString& value);

// The state to set a check box to. Throws Failure (refused) for anything but a yes or a no.
bool checkedOrRefused(const forms::Control& control, const wire::WideString& value);

// The failure for a control that does not take a step.
Failure refusal(const forms::Control& control, const std::string& why);
// The failure for a box that does not take a text.
Failure textRefusal(const forms::TextControl& box, const wire::WideString& value);

} // namespace ctl
