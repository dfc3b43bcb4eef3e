#pragma once

#include "client/CommandObserver.h"
#include "client/ServerMessages.h"
#include "wire/WaitObserver.h"

#include <atomic>
#include <string>
#include <vector>

namespace client {

// Records the calls of a command observer.
class RecordingObserver final : public CommandObserver {
public:
    void commandStarted(const CommandReport& report) override { started.push_back(report); }
    void commandEnded(const CommandReport& report) override { ended.push_back(report); }

    std::vector<CommandReport> started;
    std::vector<CommandReport> ended;
};

// Records the messages of the server.
class RecordingMessages final : public ServerMessages {
public:
    struct Box {
        wire::WideString caption;
        wire::WideString text;
        std::uint32_t style;

        bool operator==(const Box&) const = default;
    };

    void show(const wire::WideString& caption, const wire::WideString& text, std::uint32_t style) override {
        boxes.push_back({caption, text, style});
    }

    std::vector<Box> boxes;
};

// Cancels at the first call.
class GivingUp final : public wire::WaitObserver {
public:
    bool keepWaiting(std::chrono::milliseconds, std::uint32_t) override { return false; }
};

} // namespace client
