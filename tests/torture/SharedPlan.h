#pragma once

#include "tests/torture/FaultPlan.h"

#include <filesystem>
#include <limits>

namespace torture {

// A plan in its own file, for another process to map.
class SharedPlan {
public:
    explicit SharedPlan(std::filesystem::path file);
    ~SharedPlan();
    SharedPlan(const SharedPlan&) = delete;
    SharedPlan& operator=(const SharedPlan&) = delete;

    [[nodiscard]] const std::filesystem::path& file() const { return file_; }
    [[nodiscard]] FaultPlan& plan() { return *plan_; }

private:
    std::filesystem::path file_;
    FaultPlan* plan_ = nullptr;
};

constexpr std::int64_t forEver = std::numeric_limits<std::int64_t>::max();

// From now on so many such calls fail, after some that succeed.
void arm(FaultPlan& plan, std::uint32_t calls, Effect effect, std::int64_t before, std::int64_t times = 1);

// Ends all faults; returns whether any call has failed.
bool disarm(FaultPlan& plan);

} // namespace torture
