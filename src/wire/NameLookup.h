#pragma once

#include "wire/Socket.h"

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace wire {

// A look-up whose result is known from the start.
class KnownLookup final : public NameLookup {
public:
    explicit KnownLookup(ResolveResult result) : result_(result) {}
    std::optional<ResolveResult> wait(std::chrono::milliseconds) override { return result_; }

private:
    ResolveResult result_;
};

// A look-up of a name on its own thread, because a resolver that waits for its servers can't be interrupted. Giving up
// leaves the thread running: it owns everything it needs, and ends when the resolver returns.
class ThreadLookup final : public NameLookup {
public:
    using Resolver = std::function<ResolveResult()>;

    explicit ThreadLookup(Resolver resolver);

    std::optional<ResolveResult> wait(std::chrono::milliseconds limit) override;

private:
    // What both threads share. Not a promise: destroying one that was never fulfilled allocates, which ends the program
    // when memory is short.
    struct Outcome {
        std::mutex mutex;
        std::condition_variable known;
        std::optional<ResolveResult> result;

        void tell(const ResolveResult& told);
    };

    std::shared_ptr<Outcome> outcome_ = std::make_shared<Outcome>();
};

} // namespace wire
