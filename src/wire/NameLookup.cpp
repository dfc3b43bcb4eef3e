#include "wire/NameLookup.h"

#include <system_error>
#include <thread>
#include <utility>

namespace wire {

void ThreadLookup::Outcome::tell(const ResolveResult& told) {
    {
        const std::lock_guard lock(mutex);
        result = told;
    }
    known.notify_all();
}

ThreadLookup::ThreadLookup(Resolver resolver) {
    auto look = [resolver = std::move(resolver), outcome = outcome_] {
        try {
            outcome->tell(resolver());
        } catch (...) {
            outcome->tell({.result = lookupFailed});
        }
    };
    try {
        std::thread(std::move(look)).detach();
    } catch (const std::system_error&) {
        outcome_->tell({.result = lookupFailed});
    }
}

std::optional<ResolveResult> ThreadLookup::wait(std::chrono::milliseconds limit) {
    std::unique_lock lock(outcome_->mutex);
    outcome_->known.wait_for(lock, limit, [this] { return outcome_->result.has_value(); });
    return outcome_->result;
}

} // namespace wire
