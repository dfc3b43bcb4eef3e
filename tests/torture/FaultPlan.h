#pragma once

#include <atomic>
#include <cstdint>

namespace torture {

// The calls that can be made to fail.
enum class Call : std::uint32_t {
    allocate = 1U << 0U,
    open = 1U << 1U,
    read = 1U << 2U,  // of a file
    write = 1U << 3U, // to a file
    sync = 1U << 4U,
    truncate = 1U << 5U,
    socket = 1U << 6U,
    connect = 1U << 7U,
    accept = 1U << 8U,
    send = 1U << 9U,
    receive = 1U << 10U,
    wait = 1U << 11U, // poll and epoll
    resolve = 1U << 12U,
};

[[nodiscard]] constexpr std::uint32_t bits(Call call) {
    return static_cast<std::uint32_t>(call);
}

// All calls that change a file.
constexpr std::uint32_t changingCalls = bits(Call::write) | bits(Call::sync) | bits(Call::truncate);

enum class Effect : std::uint32_t {
    none,
    fail,
    die,             // at once, as with kill -9
    writeHalfAndDie, // a call that writes nothing dies at once
};

// Which calls fail, and how. Placed in memory that a test and the process under test may share.
struct FaultPlan {
    std::atomic<Effect> effect{Effect::none};
    std::atomic<std::uint32_t> calls{0};   // the bits of the calls that count
    std::atomic<std::int64_t> before{0};   // so many calls succeed first
    std::atomic<std::int64_t> times{1};    // then so many fail
    std::atomic<std::int64_t> failures{0}; // how many have failed
    std::atomic<bool> keepsSynced{false};  // each sync leaves a copy of the file, with ".synced" appended to its name
    std::atomic<std::uint64_t> thread{0};  // the only affected thread; 0 for all
};

// Null for a process without faults.
inline std::atomic<FaultPlan*> currentPlan = nullptr;

// The effect for this call, which is counted.
[[nodiscard]] Effect nextEffect(Call call) noexcept;

// Whether this call must fail; does not return when the process must die.
[[nodiscard]] bool fails(Call call) noexcept;

[[noreturn]] void die() noexcept;

} // namespace torture
