#include "bench/BytePeer.h"

#include <csignal>
#include <stdexcept>

#include <arpa/inet.h>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <sys/prctl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace bench {
namespace {

sockaddr_in loopback(std::uint16_t port) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

[[noreturn]] void serve(int listener) {
    for (;;) {
        const int connection = accept(listener, nullptr, nullptr);
        char byte = 0;
        if (connection < 0 || recv(connection, &byte, 1, 0) < 0 || send(connection, &byte, 1, MSG_NOSIGNAL) < 0) {
            _exit(1);
        }
        close(connection);
    }
}

} // namespace

BytePeer::BytePeer() {
    const int listener = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    sockaddr_in address = loopback(0);
    socklen_t length = sizeof address;
    if (bind(listener, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0 ||
        listen(listener, SOMAXCONN) != 0 ||
        getsockname(listener, reinterpret_cast<sockaddr*>(&address), &length) != 0) {
        throw std::runtime_error("Cannot listen on the loopback address");
    }
    port_ = ntohs(address.sin_port);
    process_ = fork();
    if (process_ == 0) {
        prctl(PR_SET_PDEATHSIG, SIGTERM);
        serve(listener);
    }
    close(listener);
    if (process_ < 0) {
        throw std::runtime_error("Cannot start a process");
    }
}

BytePeer::~BytePeer() {
    kill(process_, SIGKILL);
    waitpid(process_, nullptr, 0);
}

bool BytePeer::exchange() const {
    const int connection = socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const sockaddr_in address = loopback(port_);
    char byte = 1;
    const bool done = connect(connection, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
                      send(connection, &byte, 1, MSG_NOSIGNAL) == 1 && recv(connection, &byte, 1, 0) == 1;
    close(connection);
    return done;
}

} // namespace bench
