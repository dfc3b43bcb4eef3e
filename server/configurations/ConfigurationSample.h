#pragma once

#include "server/estate/SampleRandom.h"
#include "server/store/StoreConnection.h"

namespace server {

// Fills in invented configurations of driver models and of queues, in proportion to the queues that are there.
void addConfigurationSample(StoreConnection& connection, SampleRandom& random, int);

} // namespace server
