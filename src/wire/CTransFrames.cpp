#include "wire/CTrans.h"

#include "wire/Frame.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <new>
#include <string_view>
#include <utility>

namespace trans {

using namespace std::chrono_literals;
using wire::Message;
using wire::SocketResult;
using wire::TransLogger;

namespace {

constexpr std::int32_t headerTimeout = 15; // seconds
constexpr std::chrono::seconds noteworthy = 2s;

// Logs what goes wrong while a frame is received, and which of its reads took long.
class ReceiveLog {
public:
    ReceiveLog(const TransLogger& logger, const char* prefix, wire::Clock& clock)
        : logger_(logger), prefix_(prefix), clock_(clock), enabled_(logger && prefix != nullptr) {}

    void report(std::string_view what, std::int32_t code) const {
        if (enabled_) {
            logger_(std::string(prefix_) + " CTrans::getMessages " + std::string(what), code, wire::failureLevel);
        }
    }

    // Runs one read, and reports how long it took when that is noteworthy.
    template <typename Read>
    int timed(const char* what, const std::int32_t& code, Read read) const {
        if (!enabled_) {
            return read();
        }
        const std::chrono::nanoseconds start = clock_.now();
        const int result = read();
        const auto lasted = std::chrono::floor<std::chrono::seconds>(clock_.now() - start);
        if (lasted >= noteworthy) {
            report(std::string(what) + " lasted " + std::to_string(lasted.count()) + " seconds", code);
        }
        return result;
    }

private:
    const TransLogger& logger_;
    const char* prefix_;
    wire::Clock& clock_;
    bool enabled_;
};

} // namespace

bool CTrans::sendMessages(const TransLogger& logger) {
    try {
        packMessages();
    } catch (const std::bad_alloc&) {
        messages_.clear();
        rawBuffer_.clear();
        closeSocket(); // nobody will answer what was not sent
        return false;
    }
    messages_.clear();
    if (sendBytes(rawBuffer_.data(), rawBuffer_.size()) == -1 && logger) {
        // The whole frame goes out in one call. Each of its four pieces is reported, because none of them was sent.
        for (const char* const piece : {"count", "size", "checksum", "data"}) {
            logger("CTrans::sendMessages send message " + std::string(piece) + " failed", socketError_,
                   wire::failureLevel);
        }
    }
    rawBuffer_.clear();
    return socket_ != 0; // a failed send doesn't make the call fail
}

// Lays out the frame in rawBuffer_: the header, then the queue from its front, the message that was added last.
void CTrans::packMessages() {
    rawLength_ = 0;
    for (const auto& message : messages_) {
        rawLength_ += message->size();
    }
    rawBuffer_.clear();
    rawBuffer_.reserve(wire::frameHeaderSize + rawLength_);
    rawBuffer_.resize(wire::frameHeaderSize);
    for (auto message = messages_.rbegin(); message != messages_.rend(); ++message) {
        const auto bytes = (*message)->bytes();
        rawBuffer_.insert(rawBuffer_.end(), bytes.begin(), bytes.end());
    }
    lastChecksum_ = wire::frameChecksum({rawBuffer_.data() + wire::frameHeaderSize, rawLength_});
    const auto header = wire::encodeFrameHeader(
        {.count = static_cast<std::uint8_t>(messages_.size()), .size = rawLength_, .checksum = lastChecksum_});
    std::copy(header.begin(), header.end(), rawBuffer_.begin());
}

bool CTrans::getMessages(const TransLogger& logger, const char* logPrefix) {
    if (socket_ == 0) {
        return false;
    }
    messages_.clear();
    const ReceiveLog log(logger, logPrefix, clock_);
    const auto readHeader = [&](const char* what, void* into, std::uint32_t length) {
        return log.timed(what, socketError_, [&] {
            return iGetData(static_cast<std::uint8_t*>(into), length, headerTimeout, nullptr);
        }) == static_cast<int>(length);
    };

    std::uint8_t count = 0;
    std::uint32_t checksum = 0;
    if (!readHeader("get message count", &count, sizeof count)) {
        log.report("get message count failed", socketError_);
        return reject();
    }
    if (!readHeader("get message len", &rawLength_, sizeof rawLength_)) {
        log.report("get message len failed", socketError_);
        return reject();
    }
    if (!readHeader("get message checksum", &checksum, sizeof checksum)) {
        log.report("get checksum failed", socketError_);
        return reject();
    }
    if (rawLength_ > wire::QVX_MAX_MESSAGE_SIZE) {
        log.report("raw_total_data_len > QVX_MAX_MESSAGE_SIZE", 0);
        return reject();
    }
    try {
        rawBuffer_.reserve(std::max<std::size_t>(rawLength_, 1)); // never null, not even for an empty body
        rawBuffer_.assign(rawLength_, 0);
    } catch (const std::bad_alloc&) {
        log.report("failed to allocate buffer", 0);
        return false;
    }

    // A body that didn't arrive whole isn't refused here but by its checksum, which is computed over what has arrived.
    const int received =
        log.timed("get raw data", socketError_, [&] { return readExact(rawBuffer_.data(), rawLength_); });
    if (received < 0) {
        log.report("get raw data failed", socketError_);
    } else if (static_cast<std::uint32_t>(received) != rawLength_) {
        log.report("get raw data failed, wrong size. Expected " + std::to_string(rawLength_) + ", got " +
                       std::to_string(received),
                   socketError_);
    }
    // A body longer than a read can count has overwritten itself, even if the sum happens to be right.
    const bool overrun = rawLength_ > std::numeric_limits<std::uint16_t>::max();
    if (overrun || wire::frameChecksum(rawBuffer_) != checksum) {
        log.report("checksum error", 0);
        return false;
    }
    unpackMessages(count);
    rawBuffer_.clear();
    return true;
}

void CTrans::unpackMessages(std::uint8_t count) {
    std::uint32_t offset = 0;
    for (unsigned index = 0; index < count; ++index) {
        auto message = spare_ ? std::move(spare_) : std::make_unique<Message>();
        message->loadMessage(rawBuffer_.data() + offset, rawLength_ - offset);
        offset += message->size();
        addMessage(std::move(message));
    }
}

bool CTrans::reject() {
    if (rejectText_.empty()) {
        rejectText_ = "QVX - Unknown Command";
    }
    std::array<std::uint8_t, 128> text{};
    const std::size_t length = std::min(rejectText_.size(), text.size() - 1);
    std::memcpy(text.data(), rejectText_.data(), length);
    sendBytes(text.data(), length + 1);
    return false;
}

std::intptr_t CTrans::sendBytes(const std::uint8_t* bytes, std::size_t count) {
    const SocketResult sent = calls_.send(socket_, {bytes, count});
    socketError_ = sent.error;
    ++counts_.sendCalls;
    if (sent.value > 0) {
        counts_.bytesSent += static_cast<std::uint64_t>(sent.value);
    }
    return sent.value;
}

} // namespace trans
