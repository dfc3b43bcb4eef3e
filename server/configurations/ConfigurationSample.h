#pragma once

#include "server/Estate.h"
#include "server/SampleRandom.h"

namespace server {

// Fills in invented configurations of driver models and of queues, in proportion to the queues that are there.
void addConfigurationSample(Estate& estate, SampleRandom& random, int);

} // namespace server
