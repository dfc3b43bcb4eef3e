#pragma once

#include "wire/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace ctl {

// The names from a branch such as "Printers" down to a node. Written with slashes in between; a slash in a name is
// "\/", a backslash "\\". Leading and trailing slashes are ignored, so that "/" is the top.
using NodePath = std::vector<wire::WideString>;

// Throws Failure (usage) for a backslash before anything else, and for an empty name in the middle.
NodePath parsePath(std::string_view text);
std::string formatPath(const NodePath& path);

} // namespace ctl
