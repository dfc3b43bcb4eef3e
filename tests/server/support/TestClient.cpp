#include "tests/server/support/TestClient.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cstring>
#include <stdexcept>
#include <utility>

namespace server::test {

namespace {

constexpr int waitMilliseconds = 20000;

template <class Number>
Bytes littleEndian(Number value) {
    Bytes bytes(sizeof value);
    std::memcpy(bytes.data(), &value, sizeof value);
    return bytes;
}

} // namespace

Bytes u8(std::uint8_t value) {
    return {value};
}
Bytes u16(std::uint16_t value) {
    return littleEndian(value);
}
Bytes u32(std::uint32_t value) {
    return littleEndian(value);
}

Bytes str8(std::string_view text) {
    return u16(static_cast<std::uint16_t>(text.size())) + Bytes(text.begin(), text.end());
}

Bytes str16(std::u16string_view text) {
    Bytes bytes = u16(static_cast<std::uint16_t>(text.size() * 2));
    for (const char16_t unit : text) {
        bytes = std::move(bytes) + u16(unit);
    }
    return bytes;
}

Bytes request(std::uint16_t opcode, const std::optional<Bytes>& fields, std::uint16_t version) {
    const auto command = support::commandMessage(opcode, version);
    return fields ? support::frame({support::dataMessage(*fields), command}) : support::frame({command});
}

std::uint32_t FieldCursor::number(std::size_t width) {
    std::uint32_t value = 0;
    for (std::size_t index = 0; index < width; ++index) {
        value |= std::uint32_t{message_.at(offset_ + index)} << (8 * index);
    }
    offset_ += width;
    return value;
}

std::string FieldCursor::text8() {
    std::string text(number(2), '\0');
    for (auto& character : text) {
        character = static_cast<char>(number(1));
    }
    return text;
}

std::u16string FieldCursor::text16() {
    std::u16string text(number(2) / 2, u'\0');
    for (auto& unit : text) {
        unit = static_cast<char16_t>(number(2));
    }
    return text;
}

TestClient::TestClient(std::uint16_t port) : socket_(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const int on = 1;
    ::setsockopt(socket_, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    if (::connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        ::close(socket_);
        throw std::runtime_error("the server cannot be reached");
    }
}

TestClient::~TestClient() {
    close();
}

TestClient::TestClient(TestClient&& other) noexcept : socket_(std::exchange(other.socket_, -1)) {}

TestClient& TestClient::send(const Bytes& bytes) {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const auto count = ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (count < 0) {
            throw std::runtime_error("the server does not take what is sent");
        }
        sent += static_cast<std::size_t>(count);
    }
    return *this;
}

void TestClient::trySend(const Bytes& bytes) {
    [[maybe_unused]] const auto ignored = ::send(socket_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
}

void TestClient::closeSending() {
    ::shutdown(socket_, SHUT_WR);
}

void TestClient::close() {
    if (socket_ >= 0) {
        ::close(std::exchange(socket_, -1));
    }
}

void TestClient::reset() {
    const linger now{.l_onoff = 1, .l_linger = 0};
    ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &now, sizeof now);
    close();
}

bool TestClient::waitReadable() const {
    pollfd entry{.fd = socket_, .events = POLLIN, .revents = 0};
    return ::poll(&entry, 1, waitMilliseconds) == 1;
}

Bytes TestClient::receive(std::size_t count) {
    Bytes bytes(count);
    std::size_t got = 0;
    while (got < count) {
        if (!waitReadable()) {
            throw std::runtime_error("the server says nothing");
        }
        const auto now = ::recv(socket_, bytes.data() + got, count - got, 0);
        if (now <= 0) {
            throw std::runtime_error("the server has closed");
        }
        got += static_cast<std::size_t>(now);
    }
    return bytes;
}

Bytes TestClient::receiveFrame() {
    const Bytes header = receive(9);
    const Bytes data = receive(FieldCursor(header, 1).number(4));
    const std::uint32_t checksum = FieldCursor(header, 5).number(4);
    std::uint32_t sum = 0;
    for (const auto byte : data) {
        sum += byte;
    }
    if (header[0] != 1 || sum != checksum) {
        throw std::runtime_error("the server sent a frame with a wrong header");
    }
    return data;
}

Bytes TestClient::receiveAll() {
    Bytes all;
    Bytes piece(65536);
    for (;;) {
        if (!waitReadable()) {
            throw std::runtime_error("the server does not close");
        }
        const auto count = ::recv(socket_, piece.data(), piece.size(), 0);
        if (count <= 0) {
            return all;
        }
        all.insert(all.end(), piece.begin(), piece.begin() + count);
    }
}

Bytes ask(std::uint16_t port, const Bytes& request) {
    return TestClient(port).send(request).receiveAll();
}

void tell(std::uint16_t port, const Bytes& request) {
    TestClient(port).send(request).close();
}

std::vector<Bytes> messagesOf(const Bytes& frames) {
    std::vector<Bytes> messages;
    for (std::size_t offset = 0; offset < frames.size();) {
        const auto size = FieldCursor(frames, offset + 1).number(4);
        const auto begin = frames.begin() + static_cast<std::ptrdiff_t>(offset) + 9;
        messages.emplace_back(begin, begin + size);
        offset += 9 + size;
    }
    return messages;
}

} // namespace server::test
