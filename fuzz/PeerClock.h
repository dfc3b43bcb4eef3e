#pragma once

#include "wire/Clock.h"

namespace fuzz {

// A clock that advances only while a connection waits for its peer, and then at once.
class PeerClock final : public wire::Clock {
public:
    std::chrono::nanoseconds now() override { return now_; }
    void sleep(std::chrono::milliseconds duration) override { now_ += duration; }

private:
    std::chrono::nanoseconds now_{0};
};

} // namespace fuzz
