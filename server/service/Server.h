#pragma once

#include "server/commands/CommandTable.h"
#include "server/service/Connection.h"

#include <list>
#include <memory>
#include <string>

namespace server {

// The settings of a server.
struct ServerSettings {
    std::string listen = "127.0.0.1";
    std::uint16_t port = 0; // 0 for any that is free
    std::chrono::minutes loginRequired{0};
    Limits limits;
};

// Listens, and serves each connection. One thread does the network and the reads, another the changes, a third the
// logins.
class Server {
public:
    // Starts to listen. The store, the accounts and the commands outlive the server; only the server may use the
    // accounts from now on. Throws std::runtime_error with one line when it cannot listen on the address.
    Server(const Store& store, Accounts& accounts, const CommandTable& commands, const ServerSettings& settings);
    ~Server();
    Server(const Server&) = delete;
    Server& operator=(const Server&) = delete;

    [[nodiscard]] std::uint16_t port() const;

    // Serves on the calling thread until stop() has been called and work in progress is done.
    void run();

    // May be called by any thread. Commands that have reached this machine are still carried out.
    void stop();

private:
    [[nodiscard]] asio::awaitable<void> acceptAll();
    [[nodiscard]] asio::awaitable<void> waitForRoom();
    [[nodiscard]] asio::awaitable<void> watchTimes();

    void welcome(asio::ip::tcp::socket socket) noexcept;
    void beginServing(asio::ip::tcp::socket socket, const asio::ip::address& address);
    void keepWithinShare(const asio::ip::address& address);
    void makeRoom();
    [[nodiscard]] bool isIdle(Connection& connection) const;
    void beginStopping();

    Services services_; // outlives the context, which keeps the remaining connections after a failure
    asio::io_context context_{1};
    asio::ip::tcp::acceptor acceptor_;
    asio::steady_timer watch_;
    asio::steady_timer room_;                            // cancelled whenever a connection ends
    std::list<std::shared_ptr<Connection>> connections_; // in the order in which they were made
    bool stopping_ = false;
    PeerStream::Clock::time_point endBy_ = PeerStream::Clock::time_point::max();
};

} // namespace server
