#pragma once

#include "hosts/desktop/activity/Operations.h"
#include "shell/Observers.h"

#include <QDateTime>
#include <QString>

#include <optional>
#include <unordered_map>

namespace desktop {

// How old the displayed lists are, and why one could not be read again.
class ListAge final : private shell::ShellObserver {
public:
    // Both outlive it.
    ListAge(Operations& operations, shell::Observers& observers);
    ListAge(const ListAge&) = delete;
    ListAge& operator=(const ListAge&) = delete;
    ~ListAge() override;

    // When the shown list was read; empty when it never was.
    std::optional<QDateTime> readAt() const;
    // Why the shown list is older than the last attempt to read it; empty when it is not.
    QString failure() const;

    // The commands that are run from now on are not about the list.
    void setAside(bool aside) { aside_ = aside; }

    std::function<void()> onChange;

private:
    struct Reading {
        std::optional<QDateTime> readAt;
        QString failure;
    };

    const Reading* shown() const;
    void begin();
    void end();
    void commandEnded(const client::CommandReport& report) override;

    Operations& operations_;
    shell::Observers& observers_;
    std::unordered_map<console::ScopeId, Reading> readings_;
    bool hasRead_ = false; // since the operation began
    QString failure_;
    bool aside_ = false;
};

} // namespace desktop
