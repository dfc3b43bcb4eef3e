// The socket calls, intercepted before those of the platform.
#include "tests/torture/FaultPlan.h"
#include "tests/torture/NextFunction.h"

#include <netdb.h>
#include <poll.h>
#include <sys/epoll.h>
#include <sys/socket.h>

#include <cerrno>

using namespace torture;

namespace {

template <class Result, class... Arguments>
Result passOrFail(Call call, int error, Result (*next)(Arguments...), Arguments... arguments) {
    if (!fails(call)) {
        return next(arguments...);
    }
    errno = error;
    return -1;
}

// A connection that fails is broken from then on, in both directions.
template <class... Arguments>
ssize_t transferOrBreak(Call call, ssize_t (*next)(int, Arguments...), int socket, Arguments... arguments) {
    if (!fails(call)) {
        return next(socket, arguments...);
    }
    ::shutdown(socket, SHUT_RDWR);
    errno = ECONNRESET;
    return -1;
}

} // namespace

extern "C" {

int socket(int domain, int type, int protocol) noexcept {
    static auto* const next = nextFunction<int(int, int, int)>("socket");
    return passOrFail(Call::socket, EMFILE, next, domain, type, protocol);
}

int connect(int socket, const sockaddr* address, socklen_t length) {
    static auto* const next = nextFunction<int(int, const sockaddr*, socklen_t)>("connect");
    return passOrFail(Call::connect, ENETUNREACH, next, socket, address, length);
}

int accept(int socket, sockaddr* address, socklen_t* length) {
    static auto* const next = nextFunction<int(int, sockaddr*, socklen_t*)>("accept");
    return passOrFail(Call::accept, EMFILE, next, socket, address, length);
}

ssize_t send(int socket, const void* bytes, std::size_t size, int flags) {
    static auto* const next = nextFunction<ssize_t(int, const void*, std::size_t, int)>("send");
    return transferOrBreak(Call::send, next, socket, bytes, size, flags);
}

ssize_t sendmsg(int socket, const msghdr* message, int flags) {
    static auto* const next = nextFunction<ssize_t(int, const msghdr*, int)>("sendmsg");
    return transferOrBreak(Call::send, next, socket, message, flags);
}

ssize_t recv(int socket, void* bytes, std::size_t size, int flags) {
    static auto* const next = nextFunction<ssize_t(int, void*, std::size_t, int)>("recv");
    return transferOrBreak(Call::receive, next, socket, bytes, size, flags);
}

ssize_t recvmsg(int socket, msghdr* message, int flags) {
    static auto* const next = nextFunction<ssize_t(int, msghdr*, int)>("recvmsg");
    return transferOrBreak(Call::receive, next, socket, message, flags);
}

int poll(pollfd* entries, nfds_t count, int timeout) {
    static auto* const next = nextFunction<int(pollfd*, nfds_t, int)>("poll");
    return passOrFail(Call::wait, ENOMEM, next, entries, count, timeout);
}

int epoll_wait(int epoll, epoll_event* events, int most, int timeout) {
    static auto* const next = nextFunction<int(int, epoll_event*, int, int)>("epoll_wait");
    return passOrFail(Call::wait, EINTR, next, epoll, events, most, timeout);
}

int epoll_ctl(int epoll, int operation, int descriptor, epoll_event* event) noexcept {
    static auto* const next = nextFunction<int(int, int, int, epoll_event*)>("epoll_ctl");
    return passOrFail(Call::wait, ENOMEM, next, epoll, operation, descriptor, event);
}

int getaddrinfo(const char* name, const char* service, const addrinfo* hints, addrinfo** found) {
    static auto* const next = nextFunction<int(const char*, const char*, const addrinfo*, addrinfo**)>("getaddrinfo");
    return fails(Call::resolve) ? EAI_FAIL : next(name, service, hints, found);
}

} // extern "C"
