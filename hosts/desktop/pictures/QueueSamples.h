#pragma once

#include "hosts/desktop/pictures/Sample.h"

#include <vector>

namespace desktop {

// The dialogs of queues, on the small sample estate.
std::vector<Sample> queueSamples();

} // namespace desktop
