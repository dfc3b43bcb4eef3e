#include "rules/ShortIdDlg.h"

#include "client/CQVXAdminClass.h"
#include "client/rules/NewRecord.h"
#include "forms/Questions.h"

#include <utility>

namespace rules {

ShortIdDlg::ShortIdDlg(platform::Platform& platform) : ShortIdDlg(platform, false, {}) {}

ShortIdDlg::ShortIdDlg(platform::Platform& platform, protocol::ShortIdRecord shortId)
    : ShortIdDlg(platform, true, std::move(shortId)) {}

ShortIdDlg::ShortIdDlg(platform::Platform& platform, bool editing, protocol::ShortIdRecord shortId)
    : Form(platform, u"New Short Id Rule"), editing_(editing), shortId_(std::move(shortId)) {
    timeOfDay.setBeside(reservedUntil);
    eachDay.setBeside(timeOfDay);
}

void ShortIdDlg::onInitDialog() {
    validFor.onChange = reservedFor.onChoose = reservedUntil.onChoose = [this] { timesClicked(); };
    message.onSelect = [this] { enableTimes(); };
    message.onKnown = [this] { okButton().setEnabled(message.known()); }; // otherwise the rule would lose its message
    validTime.open();
    reservedTime.open();
    showTimes();
    if (editing_) {
        setTitle(u"Edit Short Id Rule");
        name.setText(shortId_.name);
        comment.setText(shortId_.comment);
    }
    enableTimes();
    message.fill(shortId_.messageId);
    if (!shortId_.messageId || message.selectedId() != shortId_.messageId) {
        message.list.select(message.messages().size()); // "<Default>"
    }
    enableTimes();
}

void ShortIdDlg::showTimes() {
    validFor.setChecked(shortId_.validMinutes || shortId_.reservedMinutes || shortId_.reservedUntil);
    validTime.show(shortId_.validMinutes);
    reservedTime.show(shortId_.reservedMinutes);
    forms::DateTime time{.year = 2000, .month = 1, .day = 1};
    if (shortId_.reservedUntil) {
        const auto seconds = static_cast<std::uint32_t>(*shortId_.reservedUntil);
        time.hour = static_cast<std::int8_t>(seconds / 3600 % 24);
        time.minute = static_cast<std::int8_t>(seconds / 60 % 60); // the seconds are not shown again, which must stay
    }
    timeOfDay.setValue(time);
    if (validFor.checked() && !shortId_.reservedUntil) {
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

void ShortIdDlg::onOk() {
    if (name.text().empty()) {
        forms::refuseBlank(name, u"Name field shoud not be blank!", u"Required field is empty");
        return;
    }
    shortId_.name = name.text();
    shortId_.comment = comment.text();
    takeTimes();
    shortId_.messageId = message.selectedId();
    client::CQVXAdminClass client;
    if (editing_) {
        client.updateShortId(shortId_);
    } else {
        client::giveNewId(shortId_.id);
        client.addShortId(shortId_);
    }
    EndDialog(forms::idOk);
}

// A short id that has no valid time has no other times either.
void ShortIdDlg::takeTimes() {
    shortId_.validMinutes = validFor.checked() ? validTime.minutes() : std::nullopt;
    shortId_.reservedMinutes.reset();
    shortId_.reservedUntil.reset();
    if (!shortId_.validMinutes) {
        return;
    }
    if (reservedUntil.chosen()) {
        shortId_.reservedUntil = secondsOfDay();
    } else {
        shortId_.reservedMinutes = reservedTime.minutes();
    }
}

std::optional<std::int64_t> ShortIdDlg::secondsOfDay() const {
    const auto& time = timeOfDay.value();
    return time ? std::optional<std::int64_t>((time->hour * 60 + time->minute) * 60 + time->second) : std::nullopt;
}

} // namespace rules
