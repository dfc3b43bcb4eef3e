#pragma once

#include "server/estate/SampleRandom.h"
#include "server/store/StoreConnection.h"

namespace server {

// Adds sample alarm programs and e-mail recipients, in proportion to the printers.
void addAlarmSample(StoreConnection& connection, SampleRandom& random, int printers);

} // namespace server
