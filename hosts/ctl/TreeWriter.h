#pragma once

#include "hosts/ctl/Options.h"
#include "shell/Shell.h"

#include <ostream>

namespace ctl {

// Writes a node and everything below it, reading what has not been read yet. Below the depth nothing is read or
// written; without a depth everything is.
class TreeWriter {
public:
    TreeWriter(shell::Shell& shell, std::optional<std::uint32_t> depth) : shell_(shell), depth_(depth) {}

    // As nested {"name", "children"}; a node at the depth has no "children".
    void writeJson(std::ostream& out, console::ScopeId id);
    // With lines that lead from a node to its children.
    void writeText(std::ostream& out, console::ScopeId id);
    // A line for each node: how many levels it is below the first one, and its path.
    void writeCsv(std::ostream& out, console::ScopeId id);

private:
    // The children to write: none below the depth.
    std::vector<console::ScopeId> childrenOf(console::ScopeId id, std::uint32_t level);
    [[nodiscard]] bool below(std::uint32_t level) const { return depth_ && level >= *depth_; }
    void writeLines(std::ostream& out, console::ScopeId id, const std::string& guide, std::uint32_t level);

    shell::Shell& shell_;
    std::optional<std::uint32_t> depth_;
};

} // namespace ctl
