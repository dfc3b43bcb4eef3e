#include "tests/support/ScriptedServer.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstring>
#include <stdexcept>
#include <system_error>
#include <utility>

namespace support {

namespace {

using namespace std::chrono_literals;

constexpr std::chrono::seconds stepLimit = 20s;
constexpr std::chrono::milliseconds pollSlice = 20ms;
constexpr std::size_t frameHeaderSize = 9;

int listenOnLoopback(std::uint16_t& port) {
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (socket < 0 || ::bind(socket, generic, length) != 0 || ::listen(socket, 16) != 0 ||
        ::getsockname(socket, generic, &length) != 0) {
        throw std::system_error(errno, std::generic_category(), "listening on the loopback address");
    }
    port = ntohs(address.sin_port);
    return socket;
}

} // namespace

ScriptedServer::ScriptedServer(Script script) : ScriptedServer(std::vector<Script>{std::move(script)}) {}

ScriptedServer::ScriptedServer(std::vector<Script> scripts)
    : scripts_(std::move(scripts)),
      listener_(listenOnLoopback(port_)),
      received_(scripts_.size()),
      thread_([this] { run(); }) {}

ScriptedServer::~ScriptedServer() {
    stopping_ = true;
    if (thread_.joinable()) {
        thread_.join();
    }
    ::close(listener_);
}

std::string ScriptedServer::finish() {
    if (thread_.joinable()) {
        thread_.join();
    }
    const std::lock_guard lock(mutex_);
    return failure_;
}

Bytes ScriptedServer::received(std::size_t connection) const {
    const std::lock_guard lock(mutex_);
    return received_.at(connection);
}

std::uint16_t ScriptedServer::unusedPort() {
    std::uint16_t port = 0;
    ::close(listenOnLoopback(port));
    return port;
}

void ScriptedServer::run() {
    for (std::size_t index = 0; index < scripts_.size(); ++index) {
        try {
            Connection connection(*this, acceptNext(), index);
            try {
                scripts_[index](connection);
            } catch (...) {
                connection.close();
                throw;
            }
            connection.close();
        } catch (const std::exception& exception) {
            const std::lock_guard lock(mutex_);
            failure_ = "connection " + std::to_string(index) + ": " + exception.what();
            return;
        }
    }
}

int ScriptedServer::acceptNext() {
    waitReadable(listener_);
    const int socket = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (socket < 0) {
        throw std::system_error(errno, std::generic_category(), "accept");
    }
    const int on = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    return socket;
}

void ScriptedServer::waitReadable(int socket) const {
    const auto deadline = std::chrono::steady_clock::now() + stepLimit;
    pollfd entry{.fd = socket, .events = POLLIN, .revents = 0};
    while (::poll(&entry, 1, static_cast<int>(pollSlice.count())) <= 0) {
        if (stopping_) {
            throw std::runtime_error("the test ended while the script waited");
        }
        if (std::chrono::steady_clock::now() > deadline) {
            throw std::runtime_error("nothing came in time");
        }
    }
}

void ScriptedServer::record(std::size_t connection, const std::uint8_t* bytes, std::size_t count) {
    const std::lock_guard lock(mutex_);
    received_[connection].insert(received_[connection].end(), bytes, bytes + count);
}

std::ptrdiff_t ScriptedServer::Connection::receiveSome(std::uint8_t* into, std::size_t count) {
    if (socket_ < 0) {
        throw std::runtime_error("the script reads from a connection that it has closed");
    }
    server_.waitReadable(socket_);
    const ssize_t received = ::recv(socket_, into, count, 0);
    if (received > 0) {
        server_.record(index_, into, static_cast<std::size_t>(received));
    }
    return received;
}

Bytes ScriptedServer::Connection::expect(std::size_t count) {
    Bytes bytes(count);
    std::size_t taken = 0;
    while (taken < count) {
        const std::ptrdiff_t received = receiveSome(bytes.data() + taken, count - taken);
        if (received <= 0) {
            throw std::runtime_error("the peer ended the connection after " + std::to_string(taken) + " of " +
                                     std::to_string(count) + " bytes");
        }
        taken += static_cast<std::size_t>(received);
    }
    return bytes;
}

Bytes ScriptedServer::Connection::expectFrame() {
    Bytes header = expect(frameHeaderSize);
    std::uint32_t size = 0;
    std::memcpy(&size, &header[1], sizeof size);
    return std::move(header) + expect(size);
}

Bytes ScriptedServer::Connection::untilClosed() {
    Bytes bytes;
    std::array<std::uint8_t, 4096> piece{};
    for (std::ptrdiff_t received = receiveSome(piece.data(), piece.size()); received > 0;
         received = receiveSome(piece.data(), piece.size())) {
        bytes.insert(bytes.end(), piece.begin(), piece.begin() + received);
    }
    return bytes;
}

void ScriptedServer::Connection::send(const Bytes& bytes) {
    std::size_t sent = 0;
    while (sent < bytes.size()) {
        const ssize_t count = ::send(socket_, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL | MSG_DONTWAIT);
        if (count >= 0) {
            sent += static_cast<std::size_t>(count);
            continue;
        }
        if (errno != EAGAIN) {
            throw std::system_error(errno, std::generic_category(), "send");
        }
        if (server_.stopping_) {
            throw std::runtime_error("the test ended while the script sent");
        }
        pollfd entry{.fd = socket_, .events = POLLOUT, .revents = 0};
        ::poll(&entry, 1, static_cast<int>(pollSlice.count()));
    }
}

void ScriptedServer::Connection::drip(const Bytes& bytes) {
    for (const std::uint8_t byte : bytes) {
        send({byte});
    }
}

void ScriptedServer::Connection::close() {
    if (socket_ >= 0) {
        ::close(socket_);
        socket_ = -1;
    }
}

void ScriptedServer::Connection::endSending() const {
    ::shutdown(socket_, SHUT_WR);
}

void ScriptedServer::Connection::reset() {
    const linger atOnce{.l_onoff = 1, .l_linger = 0};
    ::setsockopt(socket_, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    close();
}

std::string ScriptedServer::Connection::peerAddress() const {
    sockaddr_in address{};
    socklen_t length = sizeof address;
    ::getpeername(socket_, reinterpret_cast<sockaddr*>(&address), &length);
    std::array<char, INET_ADDRSTRLEN> text{};
    return ::inet_ntop(AF_INET, &address.sin_addr, text.data(), text.size());
}

} // namespace support
