#pragma once

#include "wire/Socket.h"

#include <functional>
#include <future>

namespace wire {

// A look-up of a name that is known from the start.
class KnownLookup final : public NameLookup {
public:
    explicit KnownLookup(ResolveResult result) : result_(result) {}
    std::optional<ResolveResult> wait(std::chrono::milliseconds) override { return result_; }

private:
    ResolveResult result_;
};

// A look-up of a name on a thread of its own, because nothing ends a resolver that waits for its servers. Whoever gives
// up leaves the thread to itself: it owns all that it needs, and ends when the resolver does.
class ThreadLookup final : public NameLookup {
public:
    using Resolver = std::function<ResolveResult()>;

    explicit ThreadLookup(Resolver resolver);

    std::optional<ResolveResult> wait(std::chrono::milliseconds limit) override;

private:
    std::future<ResolveResult> result_;
};

} // namespace wire
