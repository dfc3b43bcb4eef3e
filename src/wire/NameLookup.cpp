#include "wire/NameLookup.h"

#include <system_error>
#include <thread>
#include <utility>

namespace wire {

ThreadLookup::ThreadLookup(Resolver resolver) {
    std::promise<ResolveResult> promise;
    result_ = promise.get_future();
    auto look = [resolver = std::move(resolver), promise = std::move(promise)]() mutable {
        try {
            promise.set_value(resolver());
        } catch (...) {
            promise.set_value({.result = lookupFailed});
        }
    };
    try {
        std::thread(std::move(look)).detach();
    } catch (const std::system_error&) {
        std::promise<ResolveResult> failed;
        result_ = failed.get_future();
        failed.set_value({.result = lookupFailed});
    }
}

std::optional<ResolveResult> ThreadLookup::wait(std::chrono::milliseconds limit) {
    if (result_.wait_for(limit) != std::future_status::ready) {
        return std::nullopt;
    }
    return result_.get();
}

} // namespace wire
