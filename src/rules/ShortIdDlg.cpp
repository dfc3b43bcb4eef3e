#include "rules/ShortIdDlg.h"

#include "client/rules/NewRecord.h"
#include "forms/Questions.h"

#include <utility>

namespace rules {

ShortIdDlg::ShortIdDlg(platform::Platform& platform, std::optional<Record> edited)
    : RecordForm(platform, {u"New Short Id Rule", u"Edit Short Id Rule"}, std::move(edited), {}) {
    timeOfDay.setBeside(reservedUntil);
    eachDay.setBeside(timeOfDay);
}

void ShortIdDlg::onInitDialog() {
    validFor.onChange = reservedFor.onChoose = reservedUntil.onChoose = [this] { timesClicked(); };
    message.onSelect = [this] { enableTimes(); };
    message.onKnown = [this] { okButton().setEnabled(message.known()); }; // otherwise the rule would lose its message
    showTimes();
    name.setText(record_.name);
    comment.setText(record_.comment);
    enableTimes();
    message.fill(record_.messageId);
    if (!record_.messageId || message.selectedId() != record_.messageId) {
        message.list.select(message.messages().size()); // "<Default>"
    }
    enableTimes();
}

void ShortIdDlg::showTimes() {
    validFor.setChecked(record_.validMinutes || record_.reservedMinutes || record_.reservedUntil);
    validTime.show(record_.validMinutes);
    reservedTime.show(record_.reservedMinutes);
    forms::DateTime time{.year = 2000, .month = 1, .day = 1};
    if (record_.reservedUntil) {
        const auto seconds = static_cast<std::uint32_t>(*record_.reservedUntil);
        time.hour = static_cast<std::int8_t>(seconds / 3600 % 24);
        time.minute = static_cast<std::int8_t>(seconds / 60 % 60); // the seconds are not shown again, which must stay
    }
    timeOfDay.setValue(time);
    if (validFor.checked() && !record_.reservedUntil) {
        reservedFor.choose();
    } else {
        reservedUntil.choose();
    }
}

void ShortIdDlg::enableTimes() {
    const bool valid = validFor.checked();
    const bool until = reservedUntil.chosen();
    validTime.setEnabled(valid);
    reservedFor.setEnabled(valid);
    reservedTime.setEnabled(valid && !until);
    reservedUntil.setEnabled(valid);
    timeOfDay.setEnabled(valid && until);
    eachDay.setEnabled(valid && until);
    if (message.list.selectedText() == MessageControl::defaultItem) {
        message.editButton.setEnabled(false);
        message.deleteButton.setEnabled(false);
    }
}

void ShortIdDlg::timesClicked() {
    enableTimes();
    if (!validFor.checked()) {
        return;
    }
    validTime.fillIfEmpty();
    reservedTime.fillIfEmpty();
    if (!timeOfDay.value()) {
        reservedTime.number.setText(u"00:00:00"); // here and not in the picker; this must stay
    }
}

bool ShortIdDlg::take() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field shoud not be blank!", u"Required field is empty");
        return false;
    }
    record_.name = name.text();
    record_.comment = comment.text();
    takeTimes();
    record_.messageId = message.selectedId();
    return true;
}

void ShortIdDlg::addRecord(client::CQVXAdminClass& client) {
    client::giveNewId(record_.id);
    client.addShortId(record_);
}

// A short id that has no valid time has no other times either.
void ShortIdDlg::takeTimes() {
    record_.validMinutes = validFor.checked() ? validTime.minutes() : std::nullopt;
    record_.reservedMinutes.reset();
    record_.reservedUntil.reset();
    if (!record_.validMinutes) {
        return;
    }
    if (reservedUntil.chosen()) {
        record_.reservedUntil = secondsOfDay();
    } else {
        record_.reservedMinutes = reservedTime.minutes();
    }
}

std::optional<std::int64_t> ShortIdDlg::secondsOfDay() const {
    const auto& time = timeOfDay.value();
    return time ? std::optional<std::int64_t>((time->hour * 60 + time->minute) * 60 + time->second) : std::nullopt;
}

} // namespace rules
