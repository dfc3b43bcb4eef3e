#pragma once

#include "hosts/desktop/pictures/Sample.h"

#include <vector>

namespace desktop {

// The dialogs of rule groups and their entries, over the sample estate.
std::vector<Sample> ruleGroupSamples();

} // namespace desktop
