#pragma once

#include "server/Estate.h"
#include "server/SampleRandom.h"

namespace server {

// Fills in invented rule groups and entries, page limits, price plans, short ids and user messages, in proportion to
// the printers.
void addRuleSample(Estate& estate, SampleRandom& random, int printers);

} // namespace server
