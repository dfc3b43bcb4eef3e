#include "tests/support/SilentListener.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <cerrno>
#include <stdexcept>
#include <system_error>

namespace support {

SilentListener::SilentListener() {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof address;
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    const int listener = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockets_.push_back(listener);
    if (::bind(listener, generic, length) != 0 || ::listen(listener, 0) != 0 ||
        ::getsockname(listener, generic, &length) != 0) {
        throw std::system_error(errno, std::generic_category(), "listening on the loopback address");
    }
    port_ = ntohs(address.sin_port);

    // Fills the queue: the first attempt that stays pending shows that it is full.
    constexpr int mostAttempts = 64;
    constexpr int settled = 100; // milliseconds
    for (int attempt = 0; attempt < mostAttempts; ++attempt) {
        const int filler = ::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
        sockets_.push_back(filler);
        static_cast<void>(::connect(filler, generic, sizeof address));
        pollfd entry{.fd = filler, .events = POLLOUT, .revents = 0};
        if (::poll(&entry, 1, settled) == 0) {
            return;
        }
    }
    throw std::runtime_error("the queue of a listener never fills up here");
}

SilentListener::~SilentListener() {
    for (const int socket : sockets_) {
        ::close(socket);
    }
}

} // namespace support
