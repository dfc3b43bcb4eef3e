#pragma once

#include "shell/Observers.h"

#include <QDateTime>
#include <QString>

#include <deque>
#include <functional>

namespace desktop {

// A command that the console ran on the server, or a handler that was stopped.
struct Activity {
    QDateTime time{}; // of its start
    QString command{};
    QString about{};
    QString target{};
    std::uint32_t records = 0;
    std::uint64_t bytesSent = 0;
    std::uint64_t bytesReceived = 0;
    std::chrono::nanoseconds duration{0};
    client::CommandOutcome outcome = client::CommandOutcome::running;
    QString text; // why it failed
    bool isCommand = true;
};

// What the console has done recently, oldest first. Never holds a password.
class ActivityLog final : private shell::ShellObserver {
public:
    static constexpr std::size_t capacity = 2'000;

    // Outlives it.
    explicit ActivityLog(shell::Observers& observers);
    ActivityLog(const ActivityLog&) = delete;
    ActivityLog& operator=(const ActivityLog&) = delete;
    ~ActivityLog() override;

    [[nodiscard]] std::size_t size() const { return entries_.size(); }
    const Activity& operator[](std::size_t place) const { return entries_[place]; }
    void clear();

    // Called around each change: before and after one is appended, before and after the oldest is removed, before and
    // after all are removed. The last entry may still change afterwards.
    struct Listener {
        std::function<void()> aboutToAdd;
        std::function<void()> added;
        std::function<void()> aboutToDrop;
        std::function<void()> dropped;
        std::function<void()> aboutToClear;
        std::function<void()> cleared;
        std::function<void(std::size_t place)> changed;
    };
    Listener listener;

private:
    void add(Activity activity);
    void commandStarted(const client::CommandReport& report) override;
    void commandEnded(const client::CommandReport& report) override;
    void handlerStopped(std::string_view where, std::string_view what) override;

    shell::Observers& observers_;
    std::deque<Activity> entries_;
};

} // namespace desktop
