#pragma once

#include "server/Estate.h"
#include "server/SampleRandom.h"

namespace server {

// Fills in invented configurations of driver models and of queues, in proportion to the printers.
void addConfigurationSample(Estate& estate, SampleRandom& random, int printers);

} // namespace server
