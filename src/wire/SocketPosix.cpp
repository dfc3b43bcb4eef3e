#include "wire/NameLookup.h"
#include "wire/Socket.h"

#include <arpa/inet.h>
#include <fcntl.h>
#include <netdb.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/ioctl.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>

namespace wire {

namespace {

SocketResult failed(int error) {
    const bool wouldBlock = error == EAGAIN || error == EWOULDBLOCK || error == EINPROGRESS;
    const SocketFault fault = wouldBlock            ? SocketFault::wouldBlock
                              : error == ECONNRESET ? SocketFault::reset
                                                    : SocketFault::other;
    return {.value = -1, .error = error, .fault = fault};
}

// Runs a call that a signal may interrupt.
template <typename Call>
SocketResult result(Call call) {
    auto value = call();
    while (value == -1 && errno == EINTR) {
        value = call();
    }
    return value == -1 ? failed(errno) : SocketResult{.value = value};
}

// The file descriptor of a handle. On POSIX, 0 is standard input and must not be mistaken for a socket.
int descriptor(SocketHandle handle) {
    return handle == 0 ? -1 : static_cast<int>(handle);
}

SocketResult waitFor(int socket, short events, std::chrono::milliseconds limit) {
    pollfd entry{.fd = socket, .events = events, .revents = 0};
    const int value = ::poll(&entry, 1, static_cast<int>(limit.count()));
    if (value == -1 && errno == EINTR) {
        return failed(EAGAIN);
    }
    return value == -1 ? failed(errno) : SocketResult{.value = value};
}

// Asks the resolver, for as long as that takes.
ResolveResult addressOf(const std::string& host) {
    addrinfo hints{};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* found = nullptr;
    const int outcome = ::getaddrinfo(host.c_str(), nullptr, &hints, &found);
    if (outcome != 0) {
        return {.result = outcome};
    }
    const std::uint32_t address = reinterpret_cast<const sockaddr_in*>(found->ai_addr)->sin_addr.s_addr;
    ::freeaddrinfo(found);
    return {.address = address};
}

class PosixSocket final : public Socket {
public:
    bool start() override { return true; }

    SocketResult open() override {
        const int socket = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (socket != 0) {
            return socket < 0 ? failed(errno) : SocketResult{.value = socket};
        }
        // Standard input was closed and its number reused, but 0 means no socket.
        const int moved = ::fcntl(socket, F_DUPFD_CLOEXEC, 3);
        const int error = errno;
        ::close(socket);
        return moved < 0 ? failed(error) : SocketResult{.value = moved};
    }

    void bind(SocketHandle handle, const std::string& address) override {
        const sockaddr_in local = socketAddress(::inet_addr(address.c_str()), 0);
        static_cast<void>(::bind(descriptor(handle), reinterpret_cast<const sockaddr*>(&local), sizeof local));
    }

    SocketResult setBlocking(SocketHandle handle, bool blocking) override {
        int nonBlocking = blocking ? 0 : 1;
        return result([&] { return ::ioctl(descriptor(handle), FIONBIO, &nonBlocking); });
    }

    void setDebug(SocketHandle handle) override { setOption(handle, SOL_SOCKET, SO_DEBUG); }
    void setNoDelay(SocketHandle handle) override { setOption(handle, IPPROTO_TCP, TCP_NODELAY); }

    SocketResult connect(SocketHandle handle, std::uint32_t address, std::uint16_t port) override {
        const sockaddr_in peer = socketAddress(address, port);
        const int value = ::connect(descriptor(handle), reinterpret_cast<const sockaddr*>(&peer), sizeof peer);
        return value == -1 ? failed(errno) : SocketResult{.value = value};
    }

    ConnectState waitConnected(SocketHandle handle, std::chrono::milliseconds limit) override {
        const SocketResult waited = waitFor(descriptor(handle), POLLOUT, limit);
        if (waited.fault == SocketFault::wouldBlock || waited.value <= 0) {
            return {.value = waited.fault == SocketFault::wouldBlock ? 0 : static_cast<int>(waited.value),
                    .error = waited.error};
        }
        // A failed attempt makes the socket ready too: its error tells which it is.
        int error = 0;
        socklen_t length = sizeof error;
        if (::getsockopt(descriptor(handle), SOL_SOCKET, SO_ERROR, &error, &length) != 0) {
            error = errno;
        }
        return {.value = 1, .writable = error == 0, .exception = error != 0, .error = error};
    }

    SocketResult receive(SocketHandle handle, std::span<std::uint8_t> into, std::chrono::milliseconds limit) override {
        const SocketResult waited = waitFor(descriptor(handle), POLLIN, limit);
        if (waited.value == -1) {
            return waited;
        }
        return waited.value == 0
                   ? failed(EAGAIN)
                   : result([&] { return ::recv(descriptor(handle), into.data(), into.size(), MSG_DONTWAIT); });
    }

    SocketResult send(SocketHandle handle, std::span<const std::uint8_t> bytes) override {
        return handle == 0
                   ? failed(ENOTSOCK)
                   : result([&] { return ::send(descriptor(handle), bytes.data(), bytes.size(), MSG_NOSIGNAL); });
    }

    SocketResult shutdown(SocketHandle handle, int mode) override {
        const SocketResult done = result([&] { return ::shutdown(descriptor(handle), mode); });
        // Nothing is left to shut down when the peer closed first; trying again would only take time.
        return done.error == ENOTCONN ? SocketResult{} : done;
    }

    SocketResult close(SocketHandle handle) override {
        // An interrupted close has released the descriptor all the same.
        return ::close(descriptor(handle)) == 0 || errno == EINTR ? SocketResult{} : failed(errno);
    }

    std::uint32_t parseAddress(const std::string& text) override { return ::inet_addr(text.c_str()); }

    std::unique_ptr<NameLookup> resolve(const std::string& host) override {
        return std::make_unique<ThreadLookup>([host] { return addressOf(host); });
    }

private:
    static sockaddr_in socketAddress(std::uint32_t address, std::uint16_t port) {
        sockaddr_in result{};
        result.sin_family = AF_INET;
        result.sin_port = htons(port);
        result.sin_addr.s_addr = address;
        return result;
    }

    static void setOption(SocketHandle handle, int level, int option) {
        constexpr int on = 1;
        static_cast<void>(::setsockopt(descriptor(handle), level, option, &on, sizeof on));
    }
};

} // namespace

Socket& platformSocket() {
    static PosixSocket socket;
    return socket;
}

} // namespace wire
