#pragma once

#include <cstdint>

#include <sys/types.h>

namespace bench {

// The minimum that a server can do: a process that accepts connections on the loopback address, reads one byte, sends
// one back and closes. The baseline for a command with one record.
class BytePeer {
public:
    BytePeer();
    ~BytePeer();
    BytePeer(const BytePeer&) = delete;
    BytePeer& operator=(const BytePeer&) = delete;

    // Connects, sends a byte, receives a byte, and closes; false when any of it failed.
    [[nodiscard]] bool exchange() const;

private:
    std::uint16_t port_ = 0;
    pid_t process_ = 0;
};

} // namespace bench
