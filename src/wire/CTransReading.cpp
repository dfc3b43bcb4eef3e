#include "wire/CTrans.h"

#include <algorithm>
#include <cstring>
#include <optional>

namespace trans {

using namespace std::chrono_literals;
using wire::SocketFault;
using wire::SocketResult;

namespace {

constexpr std::uint32_t readAheadSize = 64 * 1024;

constexpr int socketFailed = -1;
constexpr int timedOut = -2;

} // namespace

int CTrans::iGetData(std::uint8_t* buffer, std::uint32_t length, std::int32_t timeoutSeconds,
                     std::uint32_t* receivedOut) {
    if (socket_ == 0) {
        throw "iGetData(): Socket operation on invalid socket";
    }
    const std::chrono::seconds timeout{timeoutSeconds < 0 ? readTimeout_ : timeoutSeconds};
    const auto wholeSecond = [&] { return std::chrono::floor<std::chrono::seconds>(clock_.now()); };
    const auto finish = [&](std::uint32_t count, int result) {
        if (receivedOut != nullptr) {
            *receivedOut = count;
        }
        return result;
    };

    // 16 bits on purpose: the count wraps at 65,536, and a longer body fails its checksum. Servers split their replies
    // by this limit.
    std::uint16_t received = 0;
    std::optional<std::chrono::seconds> start; // set by the first wait: data that was read ahead takes no time
    while (received < length) {
        SocketResult filled{.value = 1};
        if (readAheadNext_ == readAheadEnd_) {
            start = start ? start : wholeSecond();
            filled = fillReadAhead();
        }
        const std::uint32_t step = takeReadAhead(buffer + received, length - received);
        received = static_cast<std::uint16_t>(received + step);
        if (filled.fault == SocketFault::reset) {
            break;
        }
        if (filled.fault == SocketFault::other) {
            return finish(0, socketFailed);
        }
        if (start && timeout != 0s && wholeSecond() > *start + timeout) {
            return finish(received, timedOut);
        }
        if (filled.value == 0) {
            break; // the peer has closed
        }
    }
    return finish(received, received);
}

int CTrans::readExact(std::uint8_t* buffer, std::uint32_t length) {
    const int received = iGetData(buffer, length, -1, nullptr);
    return received >= 0 && static_cast<std::uint32_t>(received) != length ? socketFailed : received;
}

std::uint32_t CTrans::takeReadAhead(std::uint8_t* buffer, std::uint32_t length) {
    const std::uint32_t count = std::min(length, readAheadEnd_ - readAheadNext_);
    if (count != 0) {
        std::memcpy(buffer, readAhead_.get() + readAheadNext_, count);
        readAheadNext_ += count;
    }
    return count;
}

SocketResult CTrans::fillReadAhead() {
    if (!readAhead_) {
        readAhead_ = std::make_unique_for_overwrite<std::uint8_t[]>(readAheadSize);
    }
    readAheadNext_ = readAheadEnd_ = 0;
    const SocketResult filled = calls_.receive(socket_, {readAhead_.get(), readAheadSize}, longestWait);
    ++counts_.receiveCalls;
    socketError_ = filled.error;
    if (filled.value > 0) {
        readAheadEnd_ = static_cast<std::uint32_t>(filled.value);
        counts_.bytesReceived += readAheadEnd_;
    }
    if (observer_ != nullptr) {
        const std::chrono::nanoseconds now = clock_.now();
        if (filled.fault == SocketFault::wouldBlock || now - lastObserved_ >= longestWait) {
            askObserver(now);
        }
    }
    return filled;
}

} // namespace trans
