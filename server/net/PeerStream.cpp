#include "server/net/PeerStream.h"

#include <boost/asio/write.hpp>

#include <algorithm>

namespace server {

namespace {

using boost::system::error_code;

constexpr std::size_t smallestInput = 1024;
constexpr int mostLastReads = 16;
constexpr std::size_t largestRead = 16384; // memory is allocated for what has arrived, not for what is announced

} // namespace

PeerStream::PeerStream(asio::ip::tcp::socket socket) : socket_(std::move(socket)) {
    error_code ignored;
    socket_.set_option(asio::ip::tcp::no_delay(true), ignored);
    socket_.non_blocking(true, ignored);
}

asio::awaitable<std::span<const std::uint8_t>> PeerStream::take(std::size_t count, std::chrono::milliseconds time) {
    expect(time);
    while (buffered() < count) {
        const std::size_t wanted = std::min(count - buffered(), largestRead);
        if (input_.size() - end_ < wanted) {
            input_.resize(std::max(end_ + wanted, smallestInput));
        }
        error_code error;
        const std::size_t got = co_await socket_.async_read_some(
            asio::buffer(input_.data() + end_, input_.size() - end_), asio::redirect_error(asio::use_awaitable, error));
        if (error) {
            throw Dropped(dropReason_ != nullptr ? dropReason_ : "it disconnected before its request was complete");
        }
        end_ += got;
    }
    deadline_ = Clock::time_point::max();
    const std::span<const std::uint8_t> taken(input_.data() + begin_, count);
    begin_ += count;
    co_return taken;
}

asio::awaitable<void> PeerStream::send(std::span<const std::uint8_t> bytes, std::chrono::milliseconds time) {
    expect(time);
    sendingSince_ = Clock::now();
    error_code error;
    co_await asio::async_write(socket_, asio::buffer(bytes.data(), bytes.size()),
                               asio::redirect_error(asio::use_awaitable, error));
    sendingSince_ = Clock::time_point::max();
    if (error) {
        throw Dropped(dropReason_ != nullptr ? dropReason_ : "it disconnected before it received its answer");
    }
    deadline_ = Clock::time_point::max();
}

void PeerStream::expect(std::chrono::milliseconds time) {
    deadline_ = std::min(Clock::now() + time, latest_);
}

void PeerStream::dropIfLate(Clock::time_point now) {
    if (now >= deadline_) {
        drop("it kept the server waiting too long");
    }
}

void PeerStream::endBy(Clock::time_point latest) {
    latest_ = latest;
    if (deadline_ != Clock::time_point::max()) {
        deadline_ = std::min(deadline_, latest);
    }
}

bool PeerStream::hasUnread() const {
    error_code error;
    return socket_.is_open() && socket_.available(error) > 0;
}

// Closing with unread bytes would reset the connection, and the peer could lose the end of its answer.
void PeerStream::close() {
    error_code ignored;
    for (int reads = 0; reads < mostLastReads && hasUnread(); ++reads) {
        socket_.read_some(asio::buffer(input_), ignored);
    }
    socket_.close(ignored);
}

void PeerStream::drop(const char* reason) {
    dropReason_ = reason;
    error_code ignored;
    socket_.close(ignored);
}

} // namespace server
