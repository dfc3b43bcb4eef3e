#include "tests/torture/SharedPlan.h"

#include <fcntl.h>
#include <sys/mman.h>
#include <unistd.h>

#include <new>
#include <stdexcept>
#include <utility>

namespace torture {

SharedPlan::SharedPlan(std::filesystem::path file) : file_(std::move(file)) {
    const int descriptor = ::open(file_.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, S_IRUSR | S_IWUSR);
    const bool sized = ::ftruncate(descriptor, sizeof(FaultPlan)) == 0;
    void* const memory = ::mmap(nullptr, sizeof(FaultPlan), PROT_READ | PROT_WRITE, MAP_SHARED, descriptor, 0);
    ::close(descriptor);
    if (!sized || memory == MAP_FAILED) {
        throw std::runtime_error(file_.string() + " cannot be shared");
    }
    plan_ = new (memory) FaultPlan;
}

SharedPlan::~SharedPlan() {
    ::munmap(plan_, sizeof(FaultPlan));
}

void arm(FaultPlan& plan, std::uint32_t calls, Effect effect, std::int64_t before, std::int64_t times) {
    plan.effect = Effect::none;
    plan.failures = 0;
    plan.before = before;
    plan.times = times;
    plan.calls = calls;
    plan.effect = effect;
}

bool disarm(FaultPlan& plan) {
    plan.effect = Effect::none;
    return plan.failures != 0;
}

} // namespace torture
