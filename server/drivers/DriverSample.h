#pragma once

#include "server/Estate.h"
#include "server/SampleRandom.h"

namespace server {

// Fills in invented brands, models, drivers and deployments, in proportion to the printers.
void addDriverSample(Estate& estate, SampleRandom& random, int printers);

} // namespace server
