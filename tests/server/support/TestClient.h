#pragma once

#include "tests/support/Bytes.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string_view>

namespace server::test {

using support::Bytes;
using support::operator+;

// Fields of requests.
[[nodiscard]] Bytes u8(std::uint8_t value);
[[nodiscard]] Bytes u16(std::uint16_t value);
[[nodiscard]] Bytes u32(std::uint32_t value);
[[nodiscard]] Bytes str8(std::string_view text);
[[nodiscard]] Bytes str16(std::u16string_view text);

// A whole request: the Data message when there are fields, then the Command message.
[[nodiscard]] Bytes request(std::uint16_t opcode, const std::optional<Bytes>& fields, std::uint16_t version = 1);

// Reads fields from the bytes of a message, in order.
class FieldCursor {
public:
    explicit FieldCursor(const Bytes& message, std::size_t offset = 5) : message_(message), offset_(offset) {}
    [[nodiscard]] std::uint32_t number(std::size_t width);
    [[nodiscard]] std::string text8();
    [[nodiscard]] std::u16string text16();
    [[nodiscard]] bool atEnd() const { return offset_ == message_.size(); }

private:
    const Bytes& message_;
    std::size_t offset_;
};

// One connection to a server that sends and receives raw bytes. A wait of more than twenty seconds throws.
class TestClient {
public:
    explicit TestClient(std::uint16_t port);
    ~TestClient();
    TestClient(TestClient&& other) noexcept;
    TestClient(const TestClient&) = delete;
    TestClient& operator=(const TestClient&) = delete;

    TestClient& send(const Bytes& bytes);
    // Like send, but does not fail if the server has closed.
    void trySend(const Bytes& bytes);
    void closeSending();
    void close();
    // Closes so that the server sees a reset.
    void reset();

    [[nodiscard]] Bytes receive(std::size_t count);
    // The data of the next frame, its header checked.
    [[nodiscard]] Bytes receiveFrame();
    // All bytes until the server closes; a reset counts as closing.
    [[nodiscard]] Bytes receiveAll();
    // Whether the server closes without sending a byte.
    [[nodiscard]] bool isClosedSilently() { return receiveAll().empty(); }

private:
    [[nodiscard]] bool waitReadable() const;

    int socket_;
};

// Sends one command over a new connection; returns the whole answer.
[[nodiscard]] Bytes ask(std::uint16_t port, const Bytes& request);
// Sends, and closes without waiting.
void tell(std::uint16_t port, const Bytes& request);

// The messages of all frames.
[[nodiscard]] std::vector<Bytes> messagesOf(const Bytes& frames);

} // namespace server::test
