#pragma once

#include "tests/server/support/VantreldProcess.h"
#include "tests/torture/SharedPlan.h"

#include <memory>

namespace torture {

// A vantreld on the loopback address that needs no login, and of which every call can be made to go wrong.
class FaultyServer {
public:
    // All goes well while it starts. With makeFaulty the plan counts from its first call on.
    FaultyServer(const std::filesystem::path& database, SharedPlan& shared, std::vector<std::string> more = {});

    [[nodiscard]] std::uint16_t waitForPort() { return process_->waitForPort(); }
    [[nodiscard]] server::test::VantreldProcess& process() { return *process_; }

    // Ends it in good order and tells whether that went well: an exit status of 0, memory given back included.
    [[nodiscard]] bool ends();

    // Kills it, unless it has died already.
    void kill();

private:
    std::unique_ptr<server::test::VantreldProcess> process_;
};

} // namespace torture
