#pragma once

#include "hosts/common/WriteLookup.h"

#include <span>

namespace common {

// The look-ups of alarms.
std::span<const WriteLookup> alarmWriteLookups();

} // namespace common
