#pragma once

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace client {

// How a command ended.
enum class CommandOutcome : std::uint8_t { running, done, failed, cancelled };

// What is known about one command; never a password.
struct CommandReport {
    std::uint16_t opcode = 0;
    std::string_view name; // as in the catalogue
    std::string target;    // host:port
    std::string summary;   // what the command is about, in UTF-8; may be empty
    std::uint64_t bytesSent = 0;
    std::uint64_t bytesReceived = 0;
    std::uint32_t records = 0;
    std::chrono::nanoseconds duration{0};
    CommandOutcome outcome = CommandOutcome::running;
    bool connected = false;
    std::string text; // why it failed
};

// Notified of each command when it starts and exactly once when it has ended, on the thread that runs it. What it
// throws is dropped.
class CommandObserver {
public:
    virtual ~CommandObserver() = default;

    virtual void commandStarted(const CommandReport& report) = 0;
    virtual void commandEnded(const CommandReport& report) = 0;
    // A node's command or a form's handler threw, and the exception was caught. Both texts are UTF-8.
    virtual void handlerStopped([[maybe_unused]] std::string_view where, [[maybe_unused]] std::string_view what) {}
};

} // namespace client
