#pragma once

#include "server/net/Asio.h"
#include "server/net/Dropped.h"

#include <array>
#include <span>
#include <vector>

namespace server {

// The bytes of one connection. Every wait has a time limit, enforced by regular calls of dropIfLate().
class PeerStream {
public:
    using Clock = std::chrono::steady_clock;

    explicit PeerStream(asio::ip::tcp::socket socket);

    // Waits until so many bytes have arrived, and takes them; the view is valid until the next call. Throws Dropped.
    [[nodiscard]] asio::awaitable<std::span<const std::uint8_t>> take(std::size_t count,
                                                                      std::chrono::milliseconds time);

    // Returns when all bytes have been handed to the network. Throws Dropped.
    [[nodiscard]] asio::awaitable<void> send(std::span<const std::uint8_t> bytes, std::chrono::milliseconds time);

    // Makes the current wait fail if its time is up.
    void dropIfLate(Clock::time_point now);

    // Whether a send has been waiting for the peer since before this moment.
    [[nodiscard]] bool isSendingSince(Clock::time_point moment) const { return sendingSince_ < moment; }

    // Lets no wait go beyond this moment.
    void endBy(Clock::time_point latest);

    // Whether the peer has sent bytes that have not been read yet.
    [[nodiscard]] bool hasUnread() const;

    // Ends the connection so that what was sent still reaches the peer. No wait may be in progress.
    void close();
    // Ends the connection at once; the current wait fails with the reason, which is a literal.
    void drop(const char* reason);
    [[nodiscard]] bool isDropped() const { return dropReason_ != nullptr; }

private:
    void expect(std::chrono::milliseconds time);
    [[nodiscard]] std::size_t buffered() const { return end_ - begin_; }

    asio::ip::tcp::socket socket_;
    std::vector<std::uint8_t> input_;
    std::size_t begin_ = 0;
    std::size_t end_ = 0;
    Clock::time_point deadline_ = Clock::time_point::max();
    Clock::time_point latest_ = Clock::time_point::max();
    Clock::time_point sendingSince_ = Clock::time_point::max();
    const char* dropReason_ = nullptr;
};

} // namespace server
