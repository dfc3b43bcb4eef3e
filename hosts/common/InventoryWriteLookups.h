#pragma once

#include "hosts/common/WriteLookup.h"

#include <span>

namespace common {

// The look-ups of inventory and migration.
std::span<const WriteLookup> inventoryWriteLookups();

} // namespace common
