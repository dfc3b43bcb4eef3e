#pragma once

#include "client/CQVXAdminClass.h"
#include "server/SampleEstate.h"
#include "tests/adversity/Proxy.h"
#include "tests/client/Recorders.h"
#include "tests/server/support/RunningServer.h"

#include <gtest/gtest.h>

#include <string>

namespace adversity {

// A server on the small sample estate, behind a faulty connection.
class ProxiedServer : public testing::Test {
protected:
    explicit ProxiedServer(const server::Limits& limits = {}) : server_(limits) {
        const auto connection = server_.store().openConnection();
        connection->change([&] {
            server::SampleEstate(*connection).fillSmall();
            return 0;
        });
        server_.accounts().save(u"admin", u"secret");
        server_.start();
        line.emplace(server_.port());
    }

    // The settings of a console that connects through the faulty proxy, or straight to the server.
    [[nodiscard]] std::shared_ptr<client::CQVXAdminClassProperties> overLine() { return settingsFor(line->port()); }
    [[nodiscard]] std::shared_ptr<client::CQVXAdminClassProperties> straight() { return settingsFor(server_.port()); }
    [[nodiscard]] std::uint16_t serverPort() const { return server_.port(); }

    // Whether the last command through the proxy was reported as a failure.
    [[nodiscard]] bool isFailureReported() const {
        return !observer.ended.empty() && observer.ended.back().outcome == client::CommandOutcome::failed &&
               !observer.ended.back().text.empty();
    }

    std::optional<Proxy> line;
    client::RecordingObserver observer;

private:
    [[nodiscard]] std::shared_ptr<client::CQVXAdminClassProperties> settingsFor(std::uint16_t port) {
        auto settings = std::make_shared<client::CQVXAdminClassProperties>();
        settings->connectTimeout = 2;
        settings->host = "127.0.0.1";
        settings->port = port;
        settings->hooks.commands = &observer;
        return settings;
    }

    server::test::RunningServer server_;
};

} // namespace adversity
