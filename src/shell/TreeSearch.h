#pragma once

#include "shell/ScopeTree.h"

#include <functional>

namespace shell {

// The next scope item below `from`, in the order in which the tree stands and beginning again at its top, whose text
// holds the text in whatever case; 0 when no item does. With a loader it also looks into items that were never opened:
// load(id) is called for each before its children are looked at.
console::ScopeId findInTree(const ScopeTree& tree, wire::WideStringView text, console::ScopeId from,
                            const std::function<void(console::ScopeId)>& load = {});

} // namespace shell
