#pragma once

#include "server/estate/SampleRandom.h"
#include "server/store/StoreConnection.h"

namespace server {

// Adds sample inventory reports, migration plans and IP ranges, in proportion to the printers.
void addInventorySample(StoreConnection& connection, SampleRandom& random, int printers);

} // namespace server
