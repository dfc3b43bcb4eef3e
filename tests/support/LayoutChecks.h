#pragma once

#include "forms/Form.h"
#include "forms/LayoutPlan.h"

namespace support {

// Fails the running test unless the plan of the form's layout contains each control once, and each label that its
// control does not show itself.
void expectPlacedOnce(forms::Form& form, forms::Arrangement arrangement);
// Fails the running test if two labels of the form share an access key, or if a label without a key could have one by
// any exchange with the others.
void expectAccessKeys(forms::Form& form);

// Fails the running test if an access key changes when any control is hidden, shown, disabled or enabled.
void expectSteadyAccessKeys(forms::Form& form);

} // namespace support
