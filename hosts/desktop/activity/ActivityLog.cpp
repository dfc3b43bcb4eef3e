#include "hosts/desktop/activity/ActivityLog.h"

#include "hosts/desktop/look/Text.h"

#include <utility>

namespace desktop {
namespace {

Activity activityOf(const client::CommandReport& report) {
    return {.time = QDateTime::currentDateTime(),
            .command = toQString(report.name),
            .about = toQString(std::string_view(report.summary)),
            .target = toQString(std::string_view(report.target)),
            .records = report.records,
            .bytesSent = report.bytesSent,
            .bytesReceived = report.bytesReceived,
            .duration = report.duration,
            .outcome = report.outcome,
            .text = toQString(std::string_view(report.text))};
}

void call(const std::function<void()>& listener) {
    if (listener) {
        listener();
    }
}

} // namespace

ActivityLog::ActivityLog(shell::Observers& observers) : observers_(observers) {
    observers_.add(*this);
}

ActivityLog::~ActivityLog() {
    observers_.remove(*this);
}

void ActivityLog::clear() {
    call(listener.aboutToClear);
    entries_.clear();
    call(listener.cleared);
}

void ActivityLog::add(Activity activity) {
    if (entries_.size() == capacity) {
        call(listener.aboutToDrop);
        entries_.pop_front();
        call(listener.dropped);
    }
    call(listener.aboutToAdd);
    entries_.push_back(std::move(activity));
    call(listener.added);
}

void ActivityLog::commandStarted(const client::CommandReport& report) {
    add(activityOf(report));
}

// A login runs a command within a command, so the one that ends is not always the one that started last.
void ActivityLog::commandEnded(const client::CommandReport& report) {
    for (std::size_t place = entries_.size(); place-- > 0;) {
        Activity& entry = entries_[place];
        if (entry.isCommand && entry.outcome == client::CommandOutcome::running &&
            entry.command == toQString(report.name)) {
            const auto time = entry.time;
            entry = activityOf(report);
            entry.time = time;
            if (listener.changed) {
                listener.changed(place);
            }
            return;
        }
    }
}

void ActivityLog::handlerStopped(std::string_view where, std::string_view what) {
    // The line of the command that stopped it says the same.
    if (!entries_.empty() && entries_.back().isCommand && entries_.back().text == toQString(what)) {
        return;
    }
    add({.time = QDateTime::currentDateTime(),
         .command = QStringLiteral("Stopped"),
         .about = toQString(where),
         .outcome = client::CommandOutcome::failed,
         .text = toQString(what),
         .isCommand = false});
}

} // namespace desktop
