#pragma once

#include "hosts/common/WriteLookup.h"

#include <span>

namespace common {

// The look-ups of the rules.
std::span<const WriteLookup> ruleWriteLookups();

} // namespace common
