#pragma once

#include <chrono>

namespace wire {

// The clock by which a connection measures its waits.
class Clock {
public:
    virtual ~Clock() = default;

    // Never runs backwards; the starting point means nothing.
    [[nodiscard]] virtual std::chrono::nanoseconds now() = 0;

    virtual void sleep(std::chrono::milliseconds duration) = 0;
};

// The machine's monotonic clock.
[[nodiscard]] Clock& steadyClock();

} // namespace wire
