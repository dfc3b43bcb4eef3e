#pragma once

#include <cstdint>
#include <vector>

namespace support {

// A port of the loopback address at which an attempt to connect stays pending: its queue is full and nobody accepts.
class SilentListener {
public:
    SilentListener();
    ~SilentListener();
    SilentListener(const SilentListener&) = delete;
    SilentListener& operator=(const SilentListener&) = delete;

    [[nodiscard]] std::uint16_t port() const { return port_; }

private:
    std::vector<int> sockets_;
    std::uint16_t port_ = 0;
};

} // namespace support
