#pragma once

#include "server/store/StoreConnection.h"
#include "tests/adversity/SampleMessages.h"

namespace adversity {

// Gives the text fields of samples ids that stand in the estate, so that the requests mean something to its server. An
// estate that has changed gives other ids. It outlives what is made of it.
[[nodiscard]] KnownText idsOf(server::StoreConnection& connection);

} // namespace adversity
