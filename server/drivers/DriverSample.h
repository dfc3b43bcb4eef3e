#pragma once

#include "server/estate/SampleRandom.h"
#include "server/store/StoreConnection.h"

namespace server {

// Adds sample brands, models, drivers and deployments, in proportion to the printers.
void addDriverSample(StoreConnection& connection, SampleRandom& random, int printers);

} // namespace server
