#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include <sys/types.h>

namespace bench {

// The peak resident memory of a process since the last call of forgetPeakMemory, in bytes.
[[nodiscard]] std::uint64_t peakMemoryOf(pid_t process);
void forgetPeakMemoryOf(pid_t process);

// A vantreld in its own process on a free port, without logins; it ends with this object.
class ServerProcess {
public:
    // Returns when the server listens. A wrapper command with its arguments may run the server (strace, for instance).
    // Throws std::runtime_error when the server does not start.
    explicit ServerProcess(const std::filesystem::path& database, const std::vector<std::string>& options = {},
                           const std::vector<std::string>& before = {});
    ~ServerProcess();
    ServerProcess(const ServerProcess&) = delete;
    ServerProcess& operator=(const ServerProcess&) = delete;

    [[nodiscard]] std::uint16_t port() const { return port_; }

    // The resident memory now, in bytes.
    [[nodiscard]] std::uint64_t residentMemory() const;

    [[nodiscard]] pid_t process() const { return process_; }

    // Ends the server and waits until it has exited.
    void stop();

private:
    void waitUntilListening(const std::filesystem::path& portFile);

    pid_t process_ = 0;
    std::uint16_t port_ = 0;
};

} // namespace bench
