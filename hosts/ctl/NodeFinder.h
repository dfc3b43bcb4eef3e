#pragma once

#include "hosts/ctl/NodePath.h"
#include "shell/Shell.h"

namespace ctl {

// The node with a path, expanding what is on the way. Throws Failure (refused) with what there is to choose from when a
// name is not there.
console::ScopeId findNode(shell::Shell& shell, const NodePath& path);

// A row of the selected node's list, by what stands in its first column. Throws Failure (refused) likewise.
console::ResultId findRow(const shell::Shell& shell, wire::WideStringView name);

} // namespace ctl
