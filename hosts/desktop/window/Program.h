#pragma once

#include "hosts/desktop/window/Options.h"

namespace desktop {

// The scale of everything, from the options or as chosen in the window; 0 for none. Needs no application object: the
// scale must be known before that is made.
double scaleOf(const Options& options);

// Runs the windows until they are closed; returns the exit status.
int runProgram(const Options& options, const std::optional<wire::WideString>& password);

} // namespace desktop
