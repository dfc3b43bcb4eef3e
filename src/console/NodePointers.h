#pragma once

#include "console/NodeBase.h"

#include <vector>

namespace console {

// The nodes of several arrays one after the other, as rows of a result pane.
template <class... Node>
std::vector<NodeBase*> nodePointers(const NodeArray<Node>&... arrays) {
    std::vector<NodeBase*> pointers;
    pointers.reserve((arrays.size() + ...));
    const auto append = [&pointers](const auto& array) {
        for (const auto& node : array) {
            pointers.push_back(node.get());
        }
    };
    (append(arrays), ...);
    return pointers;
}

} // namespace console
