#pragma once

#include <cstdint>
#include <exception>
#include <functional>
#include <span>
#include <vector>

namespace console {

class NodeBase;

// How much of an old child a new one takes over.
enum class CarryOver : std::uint8_t { resultRow, resultRowAndScopeId };

// The children of one kind, and how a node reads them. NodeBase::childrenOf makes the usual one.
struct ChildKind {
    // Replaces the current children by those that the server has. False when the server did not answer; then, and when
    // it throws, the current children are kept. Empty for fixed children, which do not come from the server.
    std::function<bool(CarryOver what)> read;
    // The children shown in the tree, in order.
    std::function<std::vector<NodeBase*>()> nodes;
    // Whether this kind is read before the kinds that are shown above it in the tree.
    bool readFirst = false;
};

// The outcome of reading several kinds of children.
struct ReadKinds {
    std::vector<bool> read{};     // by kind
    std::exception_ptr failure{}; // the first that was thrown

    [[nodiscard]] bool all() const;
};

// Reads each kind by itself: when one fails, the others are still read. The rest is skipped only when the server does
// not answer, when there is no connection, or when the user cancels.
ReadKinds readKinds(std::span<const ChildKind> kinds, CarryOver what);

} // namespace console
