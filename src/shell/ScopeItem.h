#pragma once

#include "console/CSnapInItem.h"
#include "wire/Text.h"

#include <cstdint>
#include <memory>
#include <string>
#include <unordered_map>
#include <vector>

namespace shell {

// An item of the scope tree as the console keeps it.
struct ScopeItem {
    console::ScopeId id = 0;
    console::ScopeId parent = 0;
    std::shared_ptr<console::CSnapInItem> node;
    std::int32_t image = 0;
    std::int32_t openImage = 0;
    bool mayHaveChildren = false;
    bool loaded = false;                    // its node has been told to expand
    bool unread = false;                    // its node was told so and could not read its children
    bool open = false;                      // its children are displayed
    bool gone = false;                      // removed by a handler, but displayed until the commit
    bool back = false;                      // removed and inserted again since the last commit
    bool reopen = false;                    // to be expanded again once it is back
    std::unique_ptr<wire::WideString> text; // shown instead of the node's own
    std::vector<console::ScopeId> children; // as handlers made them, in order of insertion
    std::vector<console::ScopeId> shown;    // as displayed
    // Children removed since the last commit, by the key that identifies them when they are inserted again.
    std::unordered_multimap<std::string, console::ScopeId> departed;
};

} // namespace shell
