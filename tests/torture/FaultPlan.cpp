#include "tests/torture/FaultPlan.h"

#include <pthread.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <csignal>

namespace torture {

Effect nextEffect(Call call) noexcept {
    FaultPlan* const plan = currentPlan.load();
    if (plan == nullptr || (plan->calls.load() & bits(call)) == 0) {
        return Effect::none;
    }
    const Effect effect = plan->effect.load();
    const std::uint64_t thread = plan->thread.load();
    if (effect == Effect::none || (thread != 0 && thread != ::pthread_self())) {
        return Effect::none;
    }
    const std::int64_t before = plan->before.fetch_sub(1);
    if (before > 0 || -before >= plan->times.load()) {
        return Effect::none;
    }
    plan->failures.fetch_add(1);
    return effect;
}

bool fails(Call call) noexcept {
    const Effect effect = nextEffect(call);
    if (effect == Effect::die || effect == Effect::writeHalfAndDie) {
        die();
    }
    return effect != Effect::none;
}

void die() noexcept {
    for (;;) {
        ::syscall(SYS_kill, ::getpid(), SIGKILL);
    }
}

} // namespace torture
