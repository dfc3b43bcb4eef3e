#pragma once

#include "server/Estate.h"
#include "server/SampleRandom.h"

namespace server {

// Fills in invented alarm programs and e-mail recipients, in proportion to the printers.
void addAlarmSample(Estate& estate, SampleRandom& random, int printers);

} // namespace server
