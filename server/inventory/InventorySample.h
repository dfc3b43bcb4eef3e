#pragma once

#include "server/Estate.h"
#include "server/SampleRandom.h"

namespace server {

// Fills in invented inventory reports, migration plans and IP ranges, in proportion to the printers.
void addInventorySample(Estate& estate, SampleRandom& random, int printers);

} // namespace server
