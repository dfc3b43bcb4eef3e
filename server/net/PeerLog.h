#pragma once

#include "server/net/Asio.h"

#include <chrono>
#include <cstddef>
#include <string_view>

namespace server {

// Writes what peers do wrong to the log, but no more than a few lines a second, whatever they send.
class PeerLog {
public:
    void write(const asio::ip::address& address, std::string_view text);

private:
    std::chrono::steady_clock::time_point second_{};
    std::size_t written_ = 0;
    std::size_t heldBack_ = 0;
};

} // namespace server
