#pragma once

#include "forms/Form.h"

namespace support {

// Fails the running test unless the plan of the form's layout holds each control once, and each label that its control
// does not show itself.
void expectPlacedOnce(forms::Form& form);
// Fails it unless no two labels of the form have one access key, and those without a key have no letter that could
// still be had, whichever way the others gave way.
void expectAccessKeys(forms::Form& form);

} // namespace support
