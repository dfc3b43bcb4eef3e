#pragma once

#include "wire/Clock.h"
#include "wire/WaitObserver.h"

#include <chrono>
#include <functional>
#include <utility>

// A clock that stands still until a test moves it.
class ManualClock final : public wire::Clock {
public:
    std::chrono::nanoseconds now() override { return time; }

    void sleep(std::chrono::milliseconds duration) override {
        time += duration;
        ++sleeps;
    }

    std::chrono::nanoseconds time = std::chrono::milliseconds(1000500); // in the middle of a second
    int sleeps = 0;
};

// An observer that a test writes as a function.
class CallbackObserver final : public wire::WaitObserver {
public:
    using Callback = std::function<bool(std::chrono::milliseconds elapsed, std::uint32_t records)>;

    explicit CallbackObserver(Callback callback) : callback_(std::move(callback)) {}

    bool keepWaiting(std::chrono::milliseconds elapsed, std::uint32_t records) override {
        ++calls;
        return callback_(elapsed, records);
    }

    int calls = 0;

private:
    Callback callback_;
};
