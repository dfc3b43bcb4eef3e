#include "wire/Clock.h"

#include <thread>

namespace wire {

namespace {

class SteadyClock final : public Clock {
public:
    std::chrono::nanoseconds now() override { return std::chrono::steady_clock::now().time_since_epoch(); }
    void sleep(std::chrono::milliseconds duration) override { std::this_thread::sleep_for(duration); }
};

} // namespace

Clock& steadyClock() {
    static SteadyClock clock;
    return clock;
}

} // namespace wire
