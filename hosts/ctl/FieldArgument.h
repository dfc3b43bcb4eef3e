#pragma once

#include "protocol/FieldValue.h"

#include <string>

namespace ctl {

// Reads a field of a raw command, written as KIND:VALUE. Throws Failure (usage), saying what is allowed.
protocol::FieldValue parseField(const std::string& text);

} // namespace ctl
