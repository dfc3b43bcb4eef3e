#pragma once

#include "wire/Text.h"

#include <string>
#include <string_view>
#include <vector>

namespace ctl {

// The names from "Printers" and its like down to a node. Written with slashes in between; a slash in a name is "\/", a
// backslash "\\". Slashes at the ends do not count, so that "/" is the top.
using NodePath = std::vector<wire::WideString>;

// Throws Failure (usage) for a backslash before anything else, and for an empty name in the middle.
NodePath parsePath(std::string_view text);
std::string formatPath(const NodePath& path);

} // namespace ctl
