#include "server/net/PeerLog.h"

#include <spdlog/spdlog.h>

namespace server {

namespace {

constexpr std::size_t linesInASecond = 50;

} // namespace

void PeerLog::write(const asio::ip::address& address, std::string_view text) {
    const auto now = std::chrono::steady_clock::now();
    if (now - second_ > std::chrono::seconds(1)) {
        if (heldBack_ > 0)
            spdlog::warn("{} more lines about peers were left out", heldBack_);
        second_ = now;
        written_ = 0;
        heldBack_ = 0;
    }
    if (++written_ > linesInASecond)
        ++heldBack_;
    else
        spdlog::warn("{}: {}", address.to_string(), text);
}

} // namespace server
