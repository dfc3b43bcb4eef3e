#pragma once

#include "server/Commands.h"
#include "server/Schema.h"
#include "server/service/Server.h"
#include "tests/server/support/TestFolder.h"

#include <memory>
#include <thread>

namespace server::test {

// A server in this process, on a free port of the loopback address, with a database of its own.
class RunningServer {
public:
    explicit RunningServer(const Limits& limits = {}, std::chrono::minutes loginRequired = {})
        : store_(folder_ / "estate.db", schema()),
          accounts_(store_),
          server_(std::make_unique<Server>(
              store_, accounts_, commands(),
              ServerSettings{.listen = "127.0.0.1", .port = 0, .loginRequired = loginRequired, .limits = limits})),
          port_(server_->port()) {}
    ~RunningServer() { stop(); }
    RunningServer(const RunningServer&) = delete;
    RunningServer& operator=(const RunningServer&) = delete;

    RunningServer& start() {
        thread_ = std::jthread([this] { server_->run(); });
        return *this;
    }

    // Returns when the server has ended.
    void stop() {
        if (thread_.joinable()) {
            server_->stop();
            thread_.join();
        }
    }

    [[nodiscard]] std::uint16_t port() const { return port_; }
    [[nodiscard]] Accounts& accounts() { return accounts_; }
    [[nodiscard]] const Store& store() const { return store_; }

private:
    TestFolder folder_;
    Store store_;
    Accounts accounts_;
    std::unique_ptr<Server> server_;
    std::uint16_t port_;
    std::jthread thread_;
};

} // namespace server::test
