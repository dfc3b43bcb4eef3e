#pragma once

#include <chrono>
#include <cstdint>

namespace wire {

// Keeps a host alive while a command waits for the server.
class WaitObserver {
public:
    virtual ~WaitObserver() = default;

    // Called on the thread of the command, about every 50 ms while a connection is being made, waits for bytes, or
    // receives them. Elapsed counts from the start of the connection; records is the last value passed to noteRecords.
    // False ends the command: the wait throws Cancelled.
    virtual bool keepWaiting(std::chrono::milliseconds elapsed, std::uint32_t records) = 0;
};

} // namespace wire
