#include "tests/transcripts/SampleServer.h"

#include <csignal>
#include <stdexcept>
#include <utility>

namespace transcripts {

SampleServer::SampleServer() {
    start({"--sample", "small", "--user", "admin", "--password-file",
           folder_.write("password", std::string(password) + "\n")});
}

void SampleServer::start(std::vector<std::string> arguments) {
    arguments.insert(arguments.end(), {"--database", folder_ / "estate.db", "--port", "0"});
    process_ = std::make_unique<server::test::VantreldProcess>(std::move(arguments));
    port_ = process_->waitForPort();
}

void SampleServer::restart() {
    process_->signal(SIGTERM);
    if (process_->wait() != 0) {
        throw std::runtime_error("the server did not end well");
    }
    start({});
}

} // namespace transcripts
