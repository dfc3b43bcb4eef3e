#pragma once

#include "forms/Form.h"

namespace support {

// Fails the running test unless every host can draw the form and a user can tell its parts apart: a title, a label on
// every control that needs one, labels unique within their group, pages with titles, and a name that finds each
// control.
void expectSound(forms::Form& form);

} // namespace support
