#pragma once

#include "hosts/common/WriteLookup.h"

#include <span>

namespace common {

// The look-ups of configurations.
std::span<const WriteLookup> configurationWriteLookups();

} // namespace common
