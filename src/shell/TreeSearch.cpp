#include "shell/TreeSearch.h"

#include "shell/FoldedText.h"
#include "wire/CaseFold.h"

#include <algorithm>
#include <vector>

namespace shell {

console::ScopeId findInTree(const ScopeTree& tree, wire::WideStringView text, console::ScopeId from,
                            const std::function<void(console::ScopeId)>& load) {
    const auto wanted = wire::foldCase(text);
    console::ScopeId firstAbove = 0;
    bool below = false;
    std::vector<console::ScopeId> ahead{tree.root()};
    while (!ahead.empty()) {
        const auto id = ahead.back();
        ahead.pop_back();
        if ((below || firstAbove == 0) && containsFolded(tree.text(id), wanted)) {
            if (below) {
                return id;
            }
            firstAbove = id;
        }
        below = below || id == from;
        if (load && !tree.isLoaded(id)) {
            load(id);
        }
        const auto children = tree.children(id);
        ahead.insert(ahead.end(), children.rbegin(), children.rend());
    }
    return firstAbove;
}

} // namespace shell
