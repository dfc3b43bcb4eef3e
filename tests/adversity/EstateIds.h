#pragma once

#include "server/store/StoreConnection.h"
#include "tests/adversity/SampleMessages.h"

namespace adversity {

// Fills the text fields of samples with ids that exist in the estate, so that its server understands the requests. Ids
// follow changes of the estate. The connection must outlive the result.
[[nodiscard]] KnownText idsOf(server::StoreConnection& connection);

} // namespace adversity
