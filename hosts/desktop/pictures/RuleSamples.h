#pragma once

#include "hosts/desktop/pictures/Sample.h"

#include <vector>

namespace desktop {

// The dialogs of the rules, with records of the server.
std::vector<Sample> ruleSamples();

} // namespace desktop
