#pragma once

#include "wire/Clock.h"
#include "wire/ITransport.h"
#include "wire/Socket.h"

#include <chrono>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace trans {

// A plain TCP client for one exchange with the server: connects, sends the queue as one frame, receives one frame, and
// carries raw blocks during the login. After a disconnect it is thrown away.
//
//     block = length:u32 (then the receiver's acknowledgement, any byte) data, and the receiver's result: 01 or 02
class CTrans final : public wire::ITransport {
public:
    CTrans();

    // Uses the given platform calls and clock; owns neither.
    CTrans(wire::Socket& socketCalls, wire::Clock& clock);

    ~CTrans() override;
    CTrans(const CTrans&) = delete;
    CTrans& operator=(const CTrans&) = delete;

    void setHost(const std::string& host) override { host_ = host; }
    void setPort(std::uint16_t port) override { port_ = port; }
    bool connect(std::uint32_t timeoutSeconds, const wire::TransLogger& logger) override;
    bool disconnect(int ignored) override;
    void addMessage(std::unique_ptr<wire::Message> message) override;
    bool sendMessages(const wire::TransLogger& logger) override;
    [[nodiscard]] std::unique_ptr<wire::Message> getMessage(wire::MessageKind kind) override;
    bool getMessages(const wire::TransLogger& logger, const char* logPrefix) override;
    void reuse(std::unique_ptr<wire::Message> message) override { spare_ = std::move(message); }
    void setWaitObserver(wire::WaitObserver* observer) override { observer_ = observer; }
    void noteRecords(std::uint32_t records) override { records_ = records; }
    [[nodiscard]] const wire::TransferCounts& counts() const override { return counts_; }

    // The dotted address to connect from; empty leaves it to the platform.
    void setLocalAddress(const std::string& address) { localAddress_ = address; }

    bool iSocketConnect(std::uint32_t timeoutSeconds, const wire::TransLogger& logger);

    // The address in network order, 0 when there is none or the resolver does not answer within the limit.
    [[nodiscard]] std::uint32_t resolveDNSl(const std::string& host, std::chrono::nanoseconds limit,
                                            const wire::TransLogger& logger);

    // Reads until length bytes have arrived or the peer has closed, and returns how many were read: -1 after a socket
    // error, -2 after the time-out, which has expired when the current whole second is later than the first one plus
    // the time-out. A negative time-out means the default, 0 means none. The count has 16 bits and wraps, so that at
    // most 65,535 bytes can be read successfully. Throws the plain string "iGetData(): Socket operation on invalid
    // socket".
    int iGetData(std::uint8_t* buffer, std::uint32_t length, std::int32_t timeoutSeconds, std::uint32_t* receivedOut);

    // Like iGetData with the default time-out, but anything other than the full length is -1 (or -2).
    int readExact(std::uint8_t* buffer, std::uint32_t length);

    bool closeSocket();

    // True when the receiver confirmed the block. An empty block isn't sent and is false.
    bool sendBlock(std::string_view data);

    // False, and no data, when the block didn't arrive whole or is longer than the caller allows; of a block that is
    // too long, nothing is received.
    bool receiveBlock(std::string& data, std::uint32_t longest = std::numeric_limits<std::uint32_t>::max());

    [[nodiscard]] std::int32_t readTimeout() const { return readTimeout_; }
    [[nodiscard]] std::uint16_t chunkSize() const { return chunkSize_; }
    [[nodiscard]] std::uint32_t lastChecksum() const { return lastChecksum_; }

private:
    static constexpr std::chrono::milliseconds longestWait{50}; // then the observer is asked

    bool finishConnect(std::chrono::nanoseconds deadline, const wire::TransLogger& logger);
    bool failConnect(const std::string& what, std::int32_t code, const wire::TransLogger& logger);
    template <typename Attempt>
    auto retryUntil(std::chrono::nanoseconds deadline, Attempt attempt);
    [[nodiscard]] std::uint32_t takeReadAhead(std::uint8_t* buffer, std::uint32_t length);
    wire::SocketResult fillReadAhead();
    void askObserver(std::chrono::nanoseconds now);
    void packMessages();
    std::intptr_t sendBytes(const std::uint8_t* bytes, std::size_t count);
    bool reject();
    void unpackMessages(std::uint8_t count);
    bool receivePieces(std::string& data, std::uint32_t longest);

    wire::Socket& calls_;
    wire::Clock& clock_;
    wire::WaitObserver* observer_ = nullptr;
    std::chrono::nanoseconds observedFrom_{0};
    std::chrono::nanoseconds lastObserved_{0};
    std::uint32_t records_ = 0;
    wire::TransferCounts counts_;

    std::string localAddress_;
    bool wsaStarted_ = false;
    std::string host_;
    std::uint16_t port_ = 0;
    std::uint32_t lastChecksum_ = 0;
    std::uint32_t blockLength_ = 0;
    std::int32_t readTimeout_ = 500;  // seconds
    std::uint16_t chunkSize_ = 10000; // bytes
    std::vector<std::uint8_t> rawBuffer_;
    std::uint32_t rawLength_ = 0;
    std::vector<std::unique_ptr<wire::Message>> messages_; // the front of the queue is the last element
    std::unique_ptr<wire::Message> spare_; // already read; its memory is reused for the next message received
    wire::SocketHandle socket_ = 0;        // 0 is not connected
    std::string rejectText_;
    std::uint32_t blockProgress_ = 0;

    std::unique_ptr<std::uint8_t[]> readAhead_;
    std::uint32_t readAheadNext_ = 0;
    std::uint32_t readAheadEnd_ = 0;
    std::int32_t socketError_ = 0; // from the last receive
};

} // namespace trans
