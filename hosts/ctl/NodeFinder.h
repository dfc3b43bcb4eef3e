#pragma once

#include "hosts/ctl/NodePath.h"
#include "shell/Shell.h"

#include <span>

namespace ctl {

// The node with a path; expands the nodes on the way. Throws Failure (refused), listing the choices, when a name does
// not exist.
console::ScopeId findNode(shell::Shell& shell, const NodePath& path);

// A row of the selected node's list, by the text of its first column. Throws Failure (refused) likewise.
console::ResultId findRow(const shell::Shell& shell, wire::WideStringView name);

// The position among the texts of the children, and among those of the first column. Throw Failure (refused) likewise.
std::size_t placeOfNode(wire::WideStringView name, std::span<const wire::WideString> texts, const NodePath& above);
std::size_t placeOfRow(wire::WideStringView name, std::span<const wire::WideString> texts);

} // namespace ctl
