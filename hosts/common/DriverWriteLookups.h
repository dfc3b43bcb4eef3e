#pragma once

#include "hosts/common/WriteLookup.h"

#include <span>

namespace common {

// The look-ups of the driver catalogue.
std::span<const WriteLookup> driverWriteLookups();

} // namespace common
