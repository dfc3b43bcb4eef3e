#pragma once

#include "server/estate/SampleRandom.h"
#include "server/store/StoreConnection.h"

namespace server {

// Adds sample rule groups and entries, page limits, price plans, short ids and user messages, in proportion to the
// printers.
void addRuleSample(StoreConnection& connection, SampleRandom& random, int printers);

} // namespace server
