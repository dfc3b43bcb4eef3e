#include "tests/adversity/Proxy.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <system_error>
#include <utility>
#include <vector>

namespace adversity {

namespace {

constexpr int pollSlice = 20; // milliseconds
constexpr timeval sendLimit{.tv_sec = 20, .tv_usec = 0};

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

[[noreturn]] void failed(const char* what) {
    throw std::system_error(errno, std::generic_category(), what);
}

int listenOnLoopback(std::uint16_t& port) {
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    auto address = loopback(0);
    socklen_t length = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (socket < 0 || ::bind(socket, generic, length) != 0 || ::listen(socket, 64) != 0 ||
        ::getsockname(socket, generic, &length) != 0) {
        failed("listening on the loopback address");
    }
    port = ntohs(address.sin_port);
    return socket;
}

int connectTo(std::uint16_t port) {
    const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const auto address = loopback(port);
    if (socket < 0 || ::connect(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
        failed("connecting to the server");
    }
    return socket;
}

void prepare(int socket) {
    const int on = 1;
    ::setsockopt(socket, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    ::setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &sendLimit, sizeof sendLimit);
}

bool sendAll(int socket, const std::uint8_t* bytes, std::size_t count) {
    while (count > 0) {
        const auto sent = ::send(socket, bytes, count, MSG_NOSIGNAL);
        if (sent <= 0) {
            return false;
        }
        bytes += sent;
        count -= static_cast<std::size_t>(sent);
    }
    return true;
}

constexpr std::size_t indexOf(Direction direction) {
    return static_cast<std::size_t>(direction);
}

} // namespace

Proxy::Proxy(std::uint16_t serverPort, Fault fault)
    : serverPort_(serverPort),
      listener_(listenOnLoopback(port_)),
      fault_(std::move(fault)),
      thread_([this] { run(); }) {}

Proxy::~Proxy() {
    stopping_ = true;
    thread_.join();
    for (auto& line : lines_) {
        end(line);
    }
    ::close(listener_);
}

void Proxy::set(const Fault& fault) {
    const std::lock_guard lock(mutex_);
    fault_ = fault;
    made_ = 0;
}

std::size_t Proxy::carried(Direction direction) const {
    return carried_.at(indexOf(direction));
}

void Proxy::run() {
    while (!stopping_) {
        std::vector<pollfd> entries{{.fd = listener_, .events = POLLIN, .revents = 0}};
        for (const auto& line : lines_) {
            for (const auto direction : {Direction::toServer, Direction::toClient}) {
                const bool ended = line.ended.at(indexOf(direction));
                entries.push_back(
                    {.fd = ended ? -1 : line.sockets.at(indexOf(direction)), .events = POLLIN, .revents = 0});
            }
        }
        ::poll(entries.data(), entries.size(), pollSlice);
        std::size_t next = 1;
        for (auto& line : lines_) {
            for (const auto direction : {Direction::toServer, Direction::toClient}) {
                if (entries[next++].revents != 0 && line.sockets[0] >= 0) {
                    carry(line, direction);
                }
            }
        }
        std::erase_if(lines_, [](const Line& line) { return line.sockets[0] < 0; });
        if (entries.front().revents != 0) {
            acceptOne();
        }
    }
}

void Proxy::acceptOne() {
    Line line;
    line.sockets[0] = ::accept4(listener_, nullptr, nullptr, SOCK_CLOEXEC);
    if (line.sockets[0] < 0) {
        return;
    }
    try {
        line.sockets[1] = connectTo(serverPort_);
    } catch (const std::system_error&) {
        end(line); // to a console it looks as if the server had done it
        return;
    }
    prepare(line.sockets[0]);
    prepare(line.sockets[1]);
    const std::lock_guard lock(mutex_);
    const auto number = made_++;
    if (fault_.connection == std::numeric_limits<std::size_t>::max() || fault_.connection == number) {
        line.fault = fault_;
    }
    lines_.push_back(std::move(line));
}

void Proxy::carry(Line& line, Direction direction) {
    const auto from = indexOf(direction);
    std::array<std::uint8_t, 65536> bytes; // NOLINT(cppcoreguidelines-pro-type-member-init): filled by what is received
    const auto count = ::recv(line.sockets.at(from), bytes.data(), bytes.size(), 0);
    if (count < 0) {
        end(line);
        return;
    }
    if (count == 0) {
        line.ended.at(from) = true;
        ::shutdown(line.sockets.at(1 - from), SHUT_WR);
        if (line.ended[0] && line.ended[1]) {
            end(line);
        }
        return;
    }
    carried_.at(from) += static_cast<std::size_t>(count);
    if (!passOn(line, direction, bytes.data(), static_cast<std::size_t>(count))) {
        end(line);
    }
}

bool Proxy::passOn(Line& line, Direction direction, std::uint8_t* bytes, std::size_t count) {
    auto& passed = line.passed.at(indexOf(direction));
    const int to = line.sockets.at(1 - indexOf(direction));
    if (line.fault.direction != direction) {
        passed += count;
        return sendAll(to, bytes, count);
    }
    const auto& fault = line.fault;
    const bool cut = fault.cutAfter - passed <= count;
    count = std::min(count, fault.cutAfter - passed);
    for (const auto& [place, value] : fault.added) {
        if (place >= passed && place - passed < count) {
            bytes[place - passed] = static_cast<std::uint8_t>(bytes[place - passed] + value);
        }
    }
    while (count > 0) {
        if (fault.delay.count() > 0) {
            ::poll(nullptr, 0, static_cast<int>(fault.delay.count()));
        }
        const auto piece = std::min(count, fault.pieceSize);
        if (!sendAll(to, bytes, piece)) {
            return false;
        }
        bytes += piece;
        count -= piece;
        passed += piece;
    }
    return !cut;
}

void Proxy::end(Line& line) {
    for (int& socket : line.sockets) {
        if (socket >= 0) {
            ::close(std::exchange(socket, -1));
        }
    }
}

} // namespace adversity
