#pragma once

#include "server/Estate.h"
#include "tests/adversity/SampleMessages.h"

namespace adversity {

// Gives the text fields of samples ids that stand in the estate, so that the requests mean something to its server. An
// estate that has changed gives other ids. It outlives what is made of it.
[[nodiscard]] KnownText idsOf(server::Estate& estate);

} // namespace adversity
