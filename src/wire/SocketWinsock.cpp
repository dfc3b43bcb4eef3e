#include "wire/NameLookup.h"
#include "wire/Socket.h"

#include <winsock2.h>

#include <ws2tcpip.h>

#include <algorithm>
#include <limits>

namespace wire {

namespace {

SocketResult failed(int error) {
    const SocketFault fault = error == WSAEWOULDBLOCK  ? SocketFault::wouldBlock
                              : error == WSAECONNRESET ? SocketFault::reset
                                                       : SocketFault::other;
    return {.value = -1, .error = error, .fault = fault};
}

SocketResult result(int value) {
    return value == SOCKET_ERROR ? failed(WSAGetLastError()) : SocketResult{.value = value};
}

SOCKET socketOf(SocketHandle handle) {
    return handle == 0 ? INVALID_SOCKET : static_cast<SOCKET>(handle);
}

timeval timeOf(std::chrono::milliseconds limit) {
    return {.tv_sec = static_cast<long>(limit.count() / 1000),
            .tv_usec = static_cast<long>(limit.count() % 1000 * 1000)};
}

int sizeOf(std::size_t size) {
    return static_cast<int>(std::min<std::size_t>(size, std::numeric_limits<int>::max()));
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
    const auto address =
        static_cast<std::uint32_t>(reinterpret_cast<const sockaddr_in*>(found->ai_addr)->sin_addr.s_addr);
    ::freeaddrinfo(found);
    return {.address = address};
}

class WinsockSocket final : public Socket {
public:
    bool start() override {
        constexpr WORD version = 2;
        WSADATA data{};
        return WSAStartup(version, &data) == 0;
    }

    SocketResult open() override {
        const SOCKET socket = ::socket(AF_INET, SOCK_STREAM, 0);
        if (socket == INVALID_SOCKET) {
            return failed(WSAGetLastError());
        }
        SetHandleInformation(reinterpret_cast<HANDLE>(socket), HANDLE_FLAG_INHERIT, 0);
        return {.value = static_cast<std::intptr_t>(socket)};
    }

    void bind(SocketHandle handle, const std::string& address) override {
        const sockaddr_in local = socketAddress(inet_addr(address.c_str()), 0);
        static_cast<void>(::bind(socketOf(handle), reinterpret_cast<const sockaddr*>(&local), sizeof local));
    }

    SocketResult setBlocking(SocketHandle handle, bool blocking) override {
        u_long nonBlocking = blocking ? 0 : 1;
        return result(ioctlsocket(socketOf(handle), static_cast<long>(FIONBIO), &nonBlocking));
    }

    void setDebug(SocketHandle handle) override { setOption(handle, SOL_SOCKET, SO_DEBUG); }
    void setNoDelay(SocketHandle handle) override { setOption(handle, IPPROTO_TCP, TCP_NODELAY); }

    SocketResult connect(SocketHandle handle, std::uint32_t address, std::uint16_t port) override {
        const sockaddr_in peer = socketAddress(address, port);
        return result(::connect(socketOf(handle), reinterpret_cast<const sockaddr*>(&peer), sizeof peer));
    }

    ConnectState waitConnected(SocketHandle handle, std::chrono::milliseconds limit) override {
        fd_set writable = setOf(handle);
        fd_set exception = setOf(handle);
        timeval time = timeOf(limit);
        const int value = ::select(0, nullptr, &writable, &exception, &time);
        ConnectState state{.value = value, .error = value == SOCKET_ERROR ? WSAGetLastError() : 0};
        state.writable = value > 0 && FD_ISSET(socketOf(handle), &writable) != 0;
        state.exception = value > 0 && FD_ISSET(socketOf(handle), &exception) != 0;
        if (state.exception) {
            int length = sizeof state.error;
            ::getsockopt(socketOf(handle), SOL_SOCKET, SO_ERROR, reinterpret_cast<char*>(&state.error), &length);
        }
        return state;
    }

    SocketResult receive(SocketHandle handle, std::span<std::uint8_t> into, std::chrono::milliseconds limit) override {
        fd_set readable = setOf(handle);
        timeval time = timeOf(limit);
        const int ready = ::select(0, &readable, nullptr, nullptr, &time);
        if (ready <= 0) {
            return failed(ready == 0 ? WSAEWOULDBLOCK : WSAGetLastError());
        }
        return result(::recv(socketOf(handle), reinterpret_cast<char*>(into.data()), sizeOf(into.size()), 0));
    }

    SocketResult send(SocketHandle handle, std::span<const std::uint8_t> bytes) override {
        return result(::send(socketOf(handle), reinterpret_cast<const char*>(bytes.data()), sizeOf(bytes.size()), 0));
    }

    SocketResult shutdown(SocketHandle handle, int mode) override {
        const SocketResult done = result(::shutdown(socketOf(handle), mode));
        // Nothing is left to shut down when the peer closed first; trying again would only take time.
        return done.error == WSAENOTCONN ? SocketResult{} : done;
    }

    SocketResult close(SocketHandle handle) override { return result(::closesocket(socketOf(handle))); }

    std::uint32_t parseAddress(const std::string& text) override {
        return static_cast<std::uint32_t>(inet_addr(text.c_str()));
    }

    std::unique_ptr<NameLookup> resolve(const std::string& host) override {
        return std::make_unique<ThreadLookup>([host] { return addressOf(host); });
    }

private:
    static sockaddr_in socketAddress(unsigned long address, std::uint16_t port) {
        sockaddr_in result{};
        result.sin_family = AF_INET;
        result.sin_port = htons(port);
        result.sin_addr.s_addr = address;
        return result;
    }

    static fd_set setOf(SocketHandle handle) {
        fd_set set{};
        set.fd_count = 1;
        set.fd_array[0] = socketOf(handle);
        return set;
    }

    static void setOption(SocketHandle handle, int level, int option) {
        constexpr int on = 1;
        ::setsockopt(socketOf(handle), level, option, reinterpret_cast<const char*>(&on), sizeof on);
    }
};

} // namespace

Socket& platformSocket() {
    static WinsockSocket socket;
    return socket;
}

} // namespace wire
