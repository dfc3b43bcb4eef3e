#pragma once

#include "hosts/common/WriteLookup.h"

#include <span>

namespace common {

// The look-ups of regions, printers and queues.
std::span<const WriteLookup> estateWriteLookups();

} // namespace common
