#include "hosts/desktop/activity/WaitIndicator.h"

#include "hosts/desktop/look/Text.h"

#include <QApplication>
#include <QLocale>
#include <QScopedValueRollback>

namespace desktop {
WaitIndicator::WaitIndicator(const Operations& operations, shell::Observers& observers, QWidget& mainWindow)
    : operations_(operations), observers_(observers), mainWindow_(mainWindow) {
    observers_.add(*this);
}

WaitIndicator::~WaitIndicator() {
    observers_.remove(*this);
}

QString WaitIndicator::spoken(const QString& command) {
    QString words;
    for (const QChar letter : command) {
        if (letter.isUpper() && !words.isEmpty()) {
            words += QLatin1Char(' ');
            words += letter.toLower();
        } else {
            words += letter;
        }
    }
    return words;
}

QString WaitIndicator::describe(const QString& command, const QString& about, std::uint32_t records,
                                std::chrono::milliseconds elapsed) {
    const QLocale locale;
    QString text = spoken(command);
    if (!about.isEmpty()) {
        text += QStringLiteral(" (") + about + QLatin1Char(')');
    }
    text += QStringLiteral(": ");
    if (records > 0) {
        text += locale.toString(records) + (records == 1 ? QStringLiteral(" record, ") : QStringLiteral(" records, "));
    }
    return text + locale.toString(static_cast<qlonglong>(elapsed.count() / 1000)) + QStringLiteral(" s");
}

void WaitIndicator::commandStarted(const client::CommandReport& report) {
    command_ = toQString(report.name);
    about_ = oneLine(wire::toWide(report.summary));
    if (running_++ == 0) {
        // In a dialog one operation may include many attempts.
        if (operation_ != operations_.count() || QApplication::activeModalWidget() != nullptr) {
            operation_ = operations_.count();
            cancelled_ = false;
        }
        start_ = std::chrono::steady_clock::now();
    }
}

bool WaitIndicator::commandWaits(std::chrono::milliseconds elapsed, std::uint32_t records) {
    if (processing_) {
        return !cancelled_;
    }
    const QScopedValueRollback processing(processing_, true);
    const auto waited = std::chrono::steady_clock::now() - start_;
    if (waited < patience && elapsed < patience) {
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    } else {
        showPanel(elapsed, records);
        QCoreApplication::processEvents();
    }
    return !cancelled_;
}

void WaitIndicator::showPanel(std::chrono::milliseconds elapsed, std::uint32_t records) {
    if (!panel_) {
        QWidget* const modal = QApplication::activeModalWidget();
        panel_ = std::make_unique<WaitPanel>(modal != nullptr ? *modal : mainWindow_);
        panel_->onCancel = [this] { cancel(); };
        gate_ = std::make_unique<InputBlocker>(*panel_, [this] { cancel(); });
    }
    panel_->setText(cancelled_ ? QStringLiteral("Giving up…") : describe(command_, about_, records, elapsed));
}

void WaitIndicator::commandEnded(const client::CommandReport& /*report*/) {
    if (--running_ <= 0) {
        running_ = 0;
        gate_.reset();
        panel_.reset();
    }
}

} // namespace desktop
