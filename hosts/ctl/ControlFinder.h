#pragma once

#include "hosts/ctl/Failure.h"
#include "hosts/ctl/Step.h"

#include <cstddef>

namespace forms {
class Control;
class Form;
class TextControl;
} // namespace forms

// Which control of a form a step means, and why it can't take it; the same for every host.
namespace ctl {

// On the page in front, enabled and visible. Throws Failure (refused), with what there is to choose from when no
// control or more than one is called so.
forms::Control& reachableControl(forms::Form& form, const Step& step);

// The row of a list that is meant: by its text in the first column that has it, or by its number. Throws Failure
// (refused) likewise.
std::size_t placeAmong(const forms::Control& control, const wire::WideString& value);

// What a check box is set to. Throws Failure (refused) for anything but a yes or a no.
bool checkedOrRefused(const forms::Control& control, const wire::WideString& value);

// That the control does not take a step.
Failure refusal(const forms::Control& control, const std::string& why);
// Why a box does not take a text.
Failure textRefusal(const forms::TextControl& box, const wire::WideString& value);

} // namespace ctl
