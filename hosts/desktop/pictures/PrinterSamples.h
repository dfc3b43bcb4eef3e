#pragma once

#include "hosts/desktop/pictures/Sample.h"

#include <vector>

namespace desktop {

// The dialogs of printers and regions, with records of the server.
std::vector<Sample> printerSamples();

} // namespace desktop
