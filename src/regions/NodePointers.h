#pragma once

#include "console/NodeBase.h"

#include <vector>

namespace regions {

// The nodes of several arrays one after the other, as rows of a result pane.
template <class... Node>
std::vector<console::NodeBase*> nodePointers(const console::NodeArray<Node>&... arrays) {
    std::vector<console::NodeBase*> pointers;
    pointers.reserve((arrays.size() + ...));
    const auto append = [&pointers](const auto& array) {
        for (const auto& node : array) {
            pointers.push_back(node.get());
        }
    };
    (append(arrays), ...);
    return pointers;
}

} // namespace regions
