#pragma once

#include "hosts/desktop/window/Options.h"

namespace desktop {

// Runs the windows until they are closed; returns the exit status.
int runProgram(const Options& options, const std::optional<wire::WideString>& password);

} // namespace desktop
