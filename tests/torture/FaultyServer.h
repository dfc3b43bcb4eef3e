#pragma once

#include "tests/server/support/VantreldProcess.h"
#include "tests/torture/SharedPlan.h"

#include <memory>

namespace torture {

// A vantreld on the loopback address that needs no login, and whose system calls can be made to fail.
class FaultyServer {
public:
    // Starts without faults, unless makeFaulty is set: then the plan counts from its first call on.
    FaultyServer(const std::filesystem::path& database, SharedPlan& shared, std::vector<std::string> more = {});

    [[nodiscard]] std::uint16_t waitForPort() { return process_->waitForPort(); }
    [[nodiscard]] server::test::VantreldProcess& process() { return *process_; }

    // Ends it properly and returns whether its exit status was 0, which includes that no memory leaked.
    [[nodiscard]] bool ends();

    // Kills it, unless it has died already.
    void kill();

private:
    std::unique_ptr<server::test::VantreldProcess> process_;
};

} // namespace torture
