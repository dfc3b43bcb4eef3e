#pragma once

#include "hosts/ctl/Step.h"
#include "hosts/desktop/forms/FormDialog.h"

namespace transcripts {

// Does with a dialog what a step says. Throws ctl::Failure as vantrelctl does. The dialog may be gone afterwards.
void performStep(desktop::FormDialog& dialog, const ctl::Step& step);

} // namespace transcripts
