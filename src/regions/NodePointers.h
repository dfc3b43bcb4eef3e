#pragma once

#include "console/NodePointers.h"

namespace regions {

using console::nodePointers;

} // namespace regions
