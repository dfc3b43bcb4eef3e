#pragma once

#include "wire/Socket.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

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
    // What both threads hold. Not a promise: one that goes unkept allocates while it is destroyed, which ends the
    // program where memory is short.
    struct Outcome {
        std::mutex mutex;
        std::condition_variable known;
        std::optional<ResolveResult> result;

        void tell(const ResolveResult& told);
    };

    std::shared_ptr<Outcome> outcome_ = std::make_shared<Outcome>();
};

} // namespace wire
