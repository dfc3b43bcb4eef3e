#include "hosts/desktop/forms/DateTimeWidget.h"

#include "forms/DateTimePicker.h"
#include "hosts/desktop/forms/TypedDateTimeEdit.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLocale>
#include <QSignalBlocker>

namespace desktop {
namespace {

// The requested format, or else the locale's short one, with all digits of the year and with seconds.
QString displayFormat(const forms::DateTimeOptions& options) {
    if (!options.format.empty()) {
        return QString::fromUtf16(options.format.data(), static_cast<qsizetype>(options.format.size()));
    }
    const QLocale locale;
    QString date = locale.dateFormat(QLocale::ShortFormat);
    if (!date.contains(QStringLiteral("yyyy"))) {
        date.replace(QStringLiteral("yy"), QStringLiteral("yyyy"));
    }
    QString time = locale.timeFormat(QLocale::ShortFormat);
    if (!time.contains(QLatin1Char('s'))) {
        time.replace(QStringLiteral("mm"), QStringLiteral("mm:ss"));
    }
    if (options.date && options.time) {
        return date + QLatin1Char(' ') + time;
    }
    return options.date ? date : time;
}

QDateTime toQt(const forms::DateTime& value) {
    return {QDate(value.year, value.month, value.day), QTime(value.hour, value.minute, value.second), Qt::UTC};
}

forms::DateTime fromQt(const QDateTime& value) {
    const QDate date = value.date();
    const QTime time = value.time();
    return {.year = static_cast<std::int16_t>(date.year()),
            .month = static_cast<std::int8_t>(date.month()),
            .day = static_cast<std::int8_t>(date.day()),
            .hour = static_cast<std::int8_t>(time.hour()),
            .minute = static_cast<std::int8_t>(time.minute()),
            .second = static_cast<std::int8_t>(time.second())};
}

// The local date and time, marked as UTC: every time of day can then be picked on every day, also where clocks change.
QDateTime now() {
    const QDateTime local = QDateTime::currentDateTime();
    return {local.date(), QTime(local.time().hour(), local.time().minute(), local.time().second()), Qt::UTC};
}

} // namespace

DateTimeWidget::DateTimeWidget(forms::DateTimePicker& picker)
    : ControlWidget(picker), picker_(picker), edit_(new TypedDateTimeEdit(now())) {
    edit_->setTimeSpec(Qt::UTC);
    edit_->setDateRange(QDate(1, 1, 1), QDate(9999, 12, 31));
    edit_->setDisplayFormat(displayFormat(picker.options()));
    edit_->setCalendarPopup(picker.options().date);
    if (picker.options().optional) {
        auto* const both = new QWidget;
        set_ = new QCheckBox(both);
        auto* const row = new QHBoxLayout(both);
        row->setContentsMargins(0, 0, 0, 0);
        row->addWidget(set_);
        row->addWidget(edit_, 1);
        setUp(edit_, both);
        connect(set_, &QCheckBox::clicked, this, &DateTimeWidget::picked);
    } else {
        setUp(edit_);
    }
    if (set_ != nullptr && caption() != nullptr) {
        caption()->setBuddy(set_);
    }
    connect(edit_, &QDateTimeEdit::dateTimeChanged, this, [this] {
        if (!mirroring()) {
            picked();
        }
    });
}

std::vector<QWidget*> DateTimeWidget::tabStops() const {
    return set_ != nullptr ? std::vector<QWidget*>{set_, edit_} : std::vector<QWidget*>{edit_};
}

void DateTimeWidget::picked() {
    const bool has = set_ == nullptr || set_->isChecked();
    picker_.userPicked(has ? std::optional(fromQt(edit_->dateTime())) : std::nullopt);
    mirror(forms::Aspect::text); // restore the form's state in case the change was refused
}

void DateTimeWidget::update(forms::Aspect aspect) {
    if (aspect != forms::Aspect::text) {
        return;
    }
    const auto& value = picker_.value();
    if (value && edit_->dateTime() != toQt(*value)) {
        edit_->setDateTime(toQt(*value));
    }
    if (set_ != nullptr) {
        set_->setChecked(value.has_value());
        edit_->setEnabled(value.has_value());
    }
}

bool DateTimeWidget::eventFilter(QObject* watched, QEvent* event) {
    // A box that must have a value gets one as soon as it is shown, if the form has given it none.
    if (event->type() == QEvent::Show && set_ == nullptr && !picker_.value()) {
        picked();
    }
    return ControlWidget::eventFilter(watched, event);
}

} // namespace desktop
