#pragma once

#include <cstdint>

#include <sys/types.h>

namespace bench {

// The least that a server can do: a process that takes connections on the loopback address, reads one byte, sends one
// back and closes. The anchor for a command with one record.
class BytePeer {
public:
    BytePeer();
    ~BytePeer();
    BytePeer(const BytePeer&) = delete;
    BytePeer& operator=(const BytePeer&) = delete;

    // A connection, a byte there, a byte back, and the end of the connection; false when any of it failed.
    [[nodiscard]] bool exchange() const;

private:
    std::uint16_t port_ = 0;
    pid_t process_ = 0;
};

} // namespace bench
