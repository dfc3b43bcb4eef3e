#include "hosts/desktop/window/StatusLine.h"

#include "client/CQVXAdminClassProperties.h"
#include "hosts/desktop/look/Text.h"

#include <QLocale>
#include <QStatusBar>

namespace desktop {
namespace {

QString connectionText() {
    const auto& settings = client::theProperties;
    if (!settings) {
        return QStringLiteral("Not connected");
    }
    QString user = oneLine(settings->userName);
    if (!settings->domainName.empty()) {
        user = oneLine(settings->domainName) + QLatin1Char('\\') + user;
    }
    return QStringLiteral("%1 on %2:%3").arg(user, oneLine(wire::fromCodePage(settings->host))).arg(settings->port);
}

ElidedLabel* label(QStatusBar& bar, const QString& name) {
    auto* const made = new ElidedLabel(&bar);
    made->setAccessibleName(name);
    made->setMargin(4);
    return made;
}

} // namespace

StatusLine::StatusLine(QStatusBar& bar, const Operations& operations, const ListAge& age)
    : operations_(operations),
      age_(age),
      count_(label(bar, QStringLiteral("Rows"))),
      parts_(new PartButtons(&bar)),
      readAt_(label(bar, QStringLiteral("Time of reading"))),
      connection_(label(bar, QStringLiteral("Connection"))) {
    // The bar itself would hide the parts under a message, and with them the focus.
    bar.addPermanentWidget(count_);
    bar.addPermanentWidget(parts_, 1);
    bar.addPermanentWidget(readAt_);
    bar.addPermanentWidget(connection_);
    QObject::connect(&bar, &QStatusBar::messageChanged, count_, [this](const QString& message) {
        message_ = message;
        showCount();
    });
}

QString StatusLine::countText(std::size_t shown, std::size_t all, const QString& noun) {
    const QLocale locale;
    const QString total = locale.toString(static_cast<qulonglong>(all));
    const QString unit = QLatin1Char(' ') + (all == 1 ? noun : noun + QLatin1Char('s'));
    return shown == all ? total + unit
                        : locale.toString(static_cast<qulonglong>(shown)) + QStringLiteral(" of ") + total + unit;
}

void StatusLine::showCount() {
    const auto& console = operations_.shell();
    const auto& pane = console.pane();
    const QString count = console.selection().scope == 0
                              ? QString()
                              : countText(pane.rowCount(), pane.unfilteredCount(), oneLine(summary_.noun));
    count_->setLine(message_.isEmpty() ? count : message_);
}

void StatusLine::update() {
    const auto& pane = operations_.shell().pane();
    if (summarized_ != pane.revision()) {
        summary_ = shell::summarize(pane);
        summarized_ = pane.revision();
    }
    showCount();
    parts_->setParts(summary_.parts, pane);
    const auto time = age_.readAt();
    readAt_->setLine(time ? QStringLiteral("As of ") + time->toString(QStringLiteral("hh:mm:ss")) : QString());
    connection_->setLine(connectionText());
}

} // namespace desktop
