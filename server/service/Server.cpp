#include "server/service/Server.h"

#include "server/commands/CommandTable.h"
#include "server/log/Log.h"
#include "server/service/MemoryReserve.h"

#include <algorithm>

namespace server {

namespace {

using boost::system::error_code;
using Clock = PeerStream::Clock;

constexpr std::chrono::milliseconds pauseWithoutDescriptors{100};
constexpr std::chrono::seconds stalled{5};

asio::ip::tcp::acceptor listenOn(asio::io_context& context, const std::string& listen, std::uint16_t port) {
    error_code error;
    const auto address = asio::ip::make_address(listen, error);
    if (error) {
        throw std::runtime_error("\"" + listen + "\" is not an address to listen on");
    }
    const asio::ip::tcp::endpoint endpoint(address, port);
    try {
        return asio::ip::tcp::acceptor(context, endpoint);
    } catch (const boost::system::system_error& failure) {
        throw std::runtime_error("cannot listen on " + listen + " port " + std::to_string(port) + ": " +
                                 failure.code().message());
    }
}

// Short enough for the shortest of the limits.
Clock::duration watchInterval(const Limits& limits) {
    const auto shortest = std::min({limits.headerTime, limits.bodyTime, limits.sendTime, limits.stopTime});
    return std::clamp(shortest / 4, std::chrono::milliseconds(10), std::chrono::milliseconds(1000));
}

// Whether its command has not arrived and no bytes of it are waiting to be read.
bool isSilent(Connection& connection) {
    return connection.isArriving() && !connection.peer().isDropped() && !connection.peer().hasUnread();
}

// Rethrows the error: one that no peer can cause ends the server.
void passOn(const std::exception_ptr& error) {
    if (error) {
        std::rethrow_exception(error);
    }
}

// Makes the key in advance, so that the first login need not wait for it. A failure is reported again by the login that
// needs the key.
void makeLoginKey(Accounts& accounts) {
    try {
        (void)accounts.publicKey();
    } catch (const std::exception& error) {
        log::error("there is no key for logins", error.what());
    }
}

} // namespace

Server::Server(const Store& store, Accounts& accounts, const CommandTable& commands, const ServerSettings& settings)
    : services_(context_, store, accounts, commands, settings.limits, settings.loginRequired),
      acceptor_(listenOn(context_, settings.listen, settings.port)),
      watch_(context_),
      room_(context_) {}

Server::~Server() {
    services_.writer.join();
    services_.logins.join();
}

std::uint16_t Server::port() const {
    return acceptor_.local_endpoint().port();
}

void Server::run() {
    asio::post(services_.logins, [this] { makeLoginKey(services_.accounts); });
    asio::co_spawn(context_, acceptAll(), passOn);
    asio::co_spawn(context_, watchTimes(), passOn);
    context_.run();
}

void Server::stop() {
    asio::post(context_, [this] { beginStopping(); });
}

asio::awaitable<void> Server::acceptAll() {
    while (acceptor_.is_open()) {
        co_await waitForRoom();
        error_code error;
        auto socket = co_await acceptor_.async_accept(asio::redirect_error(asio::use_awaitable, error));
        if (!error) {
            welcome(std::move(socket));
        } else if (acceptor_.is_open()) {
            log::error("a connection could not be accepted", error.message());
            asio::steady_timer pause(context_, pauseWithoutDescriptors);
            co_await pause.async_wait(asio::use_awaitable);
        }
    }
}

// While all connections are busy, new ones are not accepted.
asio::awaitable<void> Server::waitForRoom() {
    while (acceptor_.is_open() && connections_.size() >= services_.limits.connections) {
        makeRoom();
        error_code woken;
        room_.expires_after(services_.limits.idleTime / 2);
        co_await room_.async_wait(asio::redirect_error(asio::use_awaitable, woken));
    }
}

// A connection for which there is no memory is closed without affecting later ones.
void Server::welcome(asio::ip::tcp::socket socket) noexcept {
    MemoryReserve::refill();
    error_code error;
    const auto address = socket.remote_endpoint(error).address();
    if (error) {
        return; // it has already disconnected
    }
    const auto before = connections_.size();
    try {
        keepWithinShare(address);
        beginServing(std::move(socket), address);
    } catch (const std::exception& failure) {
        connections_.resize(before);
        log::error("a connection could not be served", failure.what());
    }
}

void Server::beginServing(asio::ip::tcp::socket socket, const asio::ip::address& address) {
    auto connection = std::make_shared<Connection>(std::move(socket), address, services_);
    connection->peer().endBy(endBy_);
    const auto position = connections_.insert(connections_.end(), connection);
    asio::co_spawn(context_, connection->serve(), [this, position, connection](const std::exception_ptr& failure) {
        connections_.erase(position);
        room_.cancel();
        if (stopping_ && connections_.empty()) {
            watch_.cancel();
        }
        passOn(failure);
    });
}

bool Server::isIdle(Connection& connection) const {
    return isSilent(connection) && Clock::now() - connection.since() >= services_.limits.idleTime;
}

void Server::keepWithinShare(const asio::ip::address& address) {
    if (services_.order.arrivingFrom(address) < services_.limits.arrivingFromOneAddress) {
        return;
    }
    const auto found = std::ranges::find_if(
        connections_, [&](const auto& connection) { return connection->address() == address && isIdle(*connection); });
    if (found != connections_.end()) {
        (*found)->peer().drop("too many connections of its address sent no command");
    }
}

// Closes connections that send nothing or do not receive their answer, but never one whose command has arrived.
void Server::makeRoom() {
    for (const auto& connection : connections_) {
        if (isIdle(*connection) || connection->peer().isSendingSince(Clock::now() - stalled)) {
            connection->peer().drop("room was needed for others");
        }
    }
}

asio::awaitable<void> Server::watchTimes() {
    const auto interval = watchInterval(services_.limits);
    while (!stopping_ || !connections_.empty()) {
        error_code woken;
        watch_.expires_after(interval);
        co_await watch_.async_wait(asio::redirect_error(asio::use_awaitable, woken));
        const auto now = Clock::now();
        for (const auto& connection : connections_) {
            connection->peer().dropIfLate(now);
        }
    }
}

void Server::beginStopping() {
    if (stopping_) {
        return;
    }
    stopping_ = true;
    endBy_ = Clock::now() + services_.limits.stopTime;
    error_code error;
    acceptor_.non_blocking(true, error);
    for (;;) {
        asio::ip::tcp::socket waiting(context_);
        acceptor_.accept(waiting, error);
        if (error) {
            break;
        }
        welcome(std::move(waiting));
    }
    acceptor_.close(error);
    for (const auto& connection : connections_) {
        connection->peer().endBy(endBy_);
        if (isSilent(*connection)) {
            connection->peer().drop("the server is stopping");
        }
    }
    watch_.cancel();
    room_.cancel();
}

} // namespace server
