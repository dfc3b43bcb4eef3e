#pragma once

#include "forms/Form.h"
#include "hosts/ctl/Step.h"

namespace ctl {

// Does with a form what a step says: types into a box, ticks, picks, selects a row, presses a button. Throws Failure
// (refused), listing the choices, when there is no such control or row, when it is disabled, or when it does not take
// the value.
void perform(forms::Form& form, const Step& step);

} // namespace ctl
