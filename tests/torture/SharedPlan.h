#pragma once

#include "tests/torture/FaultPlan.h"

#include <filesystem>
#include <limits>

namespace torture {

// A plan in a file of its own, for a process that maps it too.
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

// From now on so many such calls go wrong, after some that do not.
void arm(FaultPlan& plan, std::uint32_t calls, Effect effect, std::int64_t before, std::int64_t times = 1);

// From now on all goes well; returns whether something has gone wrong.
bool disarm(FaultPlan& plan);

} // namespace torture
