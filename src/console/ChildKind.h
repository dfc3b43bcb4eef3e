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
    // Puts what the server has in the place of what stands. False without an answer; then, and when it throws, what
    // stands is left alone. None for children that are not the server's: they always stand.
    std::function<bool(CarryOver what)> read;
    // Those that belong into the tree, in order.
    std::function<std::vector<NodeBase*>()> nodes;
    // Whether it is read before kinds that stand above it in the tree.
    bool readFirst = false;
};

// What came of reading several kinds of children.
struct ReadKinds {
    std::vector<bool> read{};     // by kind
    std::exception_ptr failure{}; // the first that was thrown

    bool all() const;
};

// Reads each kind by itself: one that fails does not keep the others from being read. Only without an answer, without a
// connection, or when the person gives up, the rest is not asked for.
ReadKinds readKinds(std::span<const ChildKind> kinds, CarryOver what);

} // namespace console
