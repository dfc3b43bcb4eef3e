#include "hosts/desktop/activity/ListAge.h"

#include "hosts/desktop/look/Text.h"

namespace desktop {

ListAge::ListAge(Operations& operations, shell::Observers& observers) : operations_(operations), observers_(observers) {
    operations_.onBegin = [this] { begin(); };
    operations_.onEnd = [this] { end(); };
    observers_.add(*this);
}

ListAge::~ListAge() {
    observers_.remove(*this);
    operations_.onBegin = nullptr;
    operations_.onEnd = nullptr;
}

void ListAge::begin() {
    hasRead_ = false;
    failure_.clear();
}

void ListAge::end() {
    std::erase_if(readings_, [this](const auto& entry) { return !operations_.shell().tree().contains(entry.first); });
    if (!hasRead_ && failure_.isEmpty()) {
        return;
    }
    auto& reading = readings_[operations_.shell().selection().scope];
    reading.failure = failure_;
    if (failure_.isEmpty()) {
        reading.readAt = QDateTime::currentDateTime();
    }
    if (onChange) {
        onChange();
    }
}

const ListAge::Reading* ListAge::shown() const {
    const auto found = readings_.find(operations_.shell().selection().scope);
    return found != readings_.end() ? &found->second : nullptr;
}

std::optional<QDateTime> ListAge::readAt() const {
    const auto* const reading = shown();
    return reading != nullptr ? reading->readAt : std::nullopt;
}

QString ListAge::failure() const {
    const auto* const reading = shown();
    return reading != nullptr ? reading->failure : QString();
}

void ListAge::commandEnded(const client::CommandReport& report) {
    if (aside_ || !report.name.starts_with("List")) {
        return;
    }
    switch (report.outcome) {
    case client::CommandOutcome::cancelled:
        failure_ = QStringLiteral("Reading was cancelled");
        break;
    case client::CommandOutcome::failed:
        failure_ = oneLine(wire::toWide(report.text));
        break;
    default:
        hasRead_ = true;
        break;
    }
}

} // namespace desktop
