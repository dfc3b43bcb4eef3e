#pragma once

#include "tests/hosts/ctl/Program.h"
#include "tests/server/support/TestFolder.h"
#include "tests/server/support/VantreldProcess.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <csignal>
#include <memory>
#include <string>
#include <vector>

namespace hosttest {

using Json = nlohmann::ordered_json;
using Arguments = std::vector<std::string>;

// A new server on the small sample estate, and the command line to administer it.
class VantrelctlFixture : public testing::Test {
protected:
    void startServer() {
        server_ = std::make_unique<server::test::VantreldProcess>(
            Arguments{"--database", folder / "estate.db", "--port", "0"});
        port = std::to_string(server_->waitForPort());
    }
    void startServerWithSample() {
        server_ = std::make_unique<server::test::VantreldProcess>(
            Arguments{"--database", folder / "estate.db", "--port", "0", "--sample", "small", "--user", "admin",
                      "--password-file", folder.write("password", "geheim\n")});
        port = std::to_string(server_->waitForPort());
    }

    void kill() {
        server_->signal(SIGKILL);
        ASSERT_EQ(server_->wait(), -SIGKILL);
    }

    [[nodiscard]] Arguments withConnection(const Arguments& command) const {
        Arguments all{
            VANTRELCTL_PROGRAM, "--settings", folder / "settings.ini", "--server",         "127.0.0.1", "--port", port,
            "--user",           "admin",      "--password-file",       folder / "password"};
        all.insert(all.end(), command.begin(), command.end());
        return all;
    }
    [[nodiscard]] Outcome ctl(const Arguments& command) const { return runProgram(withConnection(command)); }
    // The output of a command that has to succeed.
    [[nodiscard]] std::string output(const Arguments& command) const {
        const auto outcome = ctl(command);
        EXPECT_EQ(outcome.status, 0) << outcome.errors;
        return outcome.output;
    }

    server::test::TestFolder folder;
    std::string port;

private:
    std::unique_ptr<server::test::VantreldProcess> server_;
};

} // namespace hosttest
