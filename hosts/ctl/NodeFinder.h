#pragma once

#include "hosts/ctl/NodePath.h"
#include "shell/Shell.h"

#include <span>

namespace ctl {

// The node with a path, expanding what is on the way. Throws Failure (refused) with what there is to choose from when a
// name is not there.
console::ScopeId findNode(shell::Shell& shell, const NodePath& path);

// A row of the selected node's list, by what stands in its first column. Throws Failure (refused) likewise.
console::ResultId findRow(const shell::Shell& shell, wire::WideStringView name);

// The place among the texts of the children, and among those of the first column. Throw Failure (refused) likewise.
std::size_t placeOfNode(wire::WideStringView name, std::span<const wire::WideString> texts, const NodePath& above);
std::size_t placeOfRow(wire::WideStringView name, std::span<const wire::WideString> texts);

} // namespace ctl
