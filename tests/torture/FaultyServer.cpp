#include "tests/torture/FaultyServer.h"

#include "tests/support/Environment.h"

#include <csignal>
#include <cstdlib>

namespace torture {

namespace {

std::vector<std::string> argumentsFor(const std::filesystem::path& database, std::vector<std::string> more) {
    more.insert(more.end(), {"--database", database.string(), "--port", "0", "--login-required", "0"});
    return more;
}

// The sanitizer's library insists on being loaded first, but our calls have to precede its own.
std::string sanitizerOptions() {
    const char* const options = std::getenv("ASAN_OPTIONS");
    return std::string(options == nullptr ? "" : options) + ":verify_asan_link_order=0";
}

} // namespace

FaultyServer::FaultyServer(const std::filesystem::path& database, SharedPlan& shared, std::vector<std::string> more) {
    const support::EnvironmentVariable preload("LD_PRELOAD", VANTREL_FAULTY_CALLS);
    const support::EnvironmentVariable plan("VANTREL_FAULT_PLAN", shared.file().string());
    const support::EnvironmentVariable options("ASAN_OPTIONS", sanitizerOptions());
    process_ = std::make_unique<server::test::VantreldProcess>(argumentsFor(database, std::move(more)));
}

bool FaultyServer::ends() {
    process_->signal(SIGTERM);
    return process_->wait() == 0;
}

void FaultyServer::kill() {
    process_->signal(SIGKILL);
    (void)process_->wait();
}

} // namespace torture
