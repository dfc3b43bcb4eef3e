#pragma once

#include "tests/server/support/TestFolder.h"
#include "tests/server/support/VantreldProcess.h"

#include <memory>

namespace transcripts {

// A vantreld of its own with the sample estate, on a free port of the loopback address. The account is "admin".
class SampleServer {
public:
    static constexpr const char* password = "geheim";

    SampleServer();

    // Ends it as an administrator does, and starts it again on its database.
    void restart();

    [[nodiscard]] std::uint16_t port() const { return port_; }
    [[nodiscard]] const server::test::TestFolder& folder() const { return folder_; }
    [[nodiscard]] std::string passwordFile() const { return folder_ / "password"; }

private:
    void start(std::vector<std::string> arguments);

    server::test::TestFolder folder_;
    std::unique_ptr<server::test::VantreldProcess> process_;
    std::uint16_t port_ = 0;
};

} // namespace transcripts
