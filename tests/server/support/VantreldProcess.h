#pragma once

#include <sys/types.h>

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace server::test {

// The program itself, and everything that it prints. Waits of more than thirty seconds throw. If it still runs at the
// end, it is killed.
class VantreldProcess {
public:
    // The size limit of files that it may write simulates a full disk.
    explicit VantreldProcess(std::vector<std::string> arguments,
                             std::optional<std::uint64_t> largestFile = std::nullopt);
    ~VantreldProcess();
    VantreldProcess(const VantreldProcess&) = delete;
    VantreldProcess& operator=(const VantreldProcess&) = delete;

    // Waits until it listens, and returns the port.
    [[nodiscard]] std::uint16_t waitForPort();

    void signal(int number);
    // Waits until it has ended; returns its exit status, or minus the signal that killed it.
    [[nodiscard]] int wait();

    // What it has printed, complete after wait().
    [[nodiscard]] const std::string& output() const { return output_; }

private:
    // False at the end of its output.
    bool readMore();

    pid_t process_ = -1;
    int pipe_ = -1;
    std::string output_;
};

} // namespace server::test
