#pragma once

#include "shell/ScopeTree.h"

#include <functional>

namespace shell {

// The next scope item after `from`, in the order of the tree and wrapping around at its end, whose text contains the
// text, ignoring case; 0 when there is none. With a loader, items that were never opened are searched as well: load(id)
// is called for each before its children are searched.
console::ScopeId findInTree(const ScopeTree& tree, wire::WideStringView text, console::ScopeId from,
                            const std::function<void(console::ScopeId)>& load = {});

} // namespace shell
