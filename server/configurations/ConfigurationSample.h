#pragma once

#include "server/estate/SampleRandom.h"
#include "server/store/StoreConnection.h"

namespace server {

// Adds sample configurations of driver models and of queues, in proportion to the queues that exist.
void addConfigurationSample(StoreConnection& connection, SampleRandom& random, int);

} // namespace server
