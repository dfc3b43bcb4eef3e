#pragma once

#include "hosts/desktop/pictures/Sample.h"

#include <vector>

namespace desktop {

// The dialogs of the rules, with what stands on the server.
std::vector<Sample> ruleSamples();

} // namespace desktop
