#include "server/net/PeerLog.h"

#include "server/log/Log.h"

namespace server {

namespace {

constexpr std::size_t linesInASecond = 50;

} // namespace

void PeerLog::write(const asio::ip::address& address, std::string_view text) {
    const auto now = std::chrono::steady_clock::now();
    if (now - second_ > std::chrono::seconds(1)) {
        if (heldBack_ > 0) {
            log::warn("lines about peers left out", std::to_string(heldBack_));
        }
        second_ = now;
        written_ = 0;
        heldBack_ = 0;
    }
    if (++written_ > linesInASecond) {
        ++heldBack_;
    } else {
        log::warn(address.to_string(), text);
    }
}

} // namespace server
