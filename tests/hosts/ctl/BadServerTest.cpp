#include "tests/hosts/ctl/VantrelctlFixture.h"
#include "tests/support/ScriptedServer.h"

#include <utility>

namespace hosttest {
namespace {

// vantrelctl at servers that are none.
class BadServer : public VantrelctlFixture {
protected:
    Outcome loginAt(support::ScriptedServer::Script script) {
        const support::ScriptedServer server(std::move(script));
        port = std::to_string(server.port());
        EXPECT_TRUE(exists(folder.write("password", "geheim\n")));
        return ctl({"login"});
    }

    void expectNoConnection(const Outcome& outcome) const {
        EXPECT_EQ(outcome.status, 3);
        EXPECT_EQ(outcome.output, "");
        EXPECT_EQ(outcome.errors, "vantrelctl: Warning: Server unavailable (127.0.0.1:" + port + ")\n");
    }
};

TEST_F(BadServer, thatSendsGarbageEndsWith3) {
    expectNoConnection(loginAt([](auto& connection) {
        connection.expectFrame();
        connection.send(support::Bytes(64, 0xEE));
        connection.close();
    }));
}

TEST_F(BadServer, thatClosesEndsWith3) {
    expectNoConnection(loginAt([](auto& connection) { connection.close(); }));
}

} // namespace
} // namespace hosttest
