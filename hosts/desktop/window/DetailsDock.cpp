#include "hosts/desktop/window/DetailsDock.h"

#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/window/StatusLine.h"

#include <QLocale>
#include <QTextBrowser>

#include <ranges>

namespace desktop {
namespace {

constexpr std::size_t mostDetailed = 20; // rows

QString htmlOf(const QString& text) {
    return text.toHtmlEscaped().replace(QLatin1Char('\n'), QStringLiteral("<br>"));
}

QString line(const QString& name, const QString& value) {
    return QStringLiteral("<tr><td style='padding-right: 12px'><b>%1</b></td><td>%2</td></tr>")
        .arg(htmlOf(name), htmlOf(value));
}

QString page(const QString& title, const QString& lines) {
    return QStringLiteral("<h3>%1</h3><table cellspacing='4'>%2</table>").arg(htmlOf(title), lines);
}

QString pageOfRow(const shell::Shell& shell, std::size_t place) {
    QString lines;
    const auto& columns = shell.header().columns();
    for (std::size_t column = 0; column < columns.size(); ++column) {
        lines += line(toQString(columns[column].title),
                      toQString(shell.pane().cell(place, static_cast<std::int32_t>(column))));
    }
    if (const auto state = shell.pane().row(place).node->rowState()) {
        lines += line(QStringLiteral("State"), toQString(console::describe(*state)));
    }
    return page(toQString(shell.pane().cell(place, 0)), lines);
}

QString pageOfRows(const shell::Shell& shell, const std::vector<std::size_t>& rows) {
    QString html;
    if (rows.size() > 1) {
        html = QStringLiteral("<p>%1</p>")
                   .arg(StatusLine::countText(rows.size(), shell.pane().rowCount()) + QStringLiteral(" selected"));
    }
    for (const std::size_t place : rows | std::views::take(mostDetailed)) {
        html += pageOfRow(shell, place);
    }
    if (rows.size() > mostDetailed) {
        html += QStringLiteral("<p>and %1 more</p>")
                    .arg(QLocale().toString(static_cast<qulonglong>(rows.size() - mostDetailed)));
    }
    return html;
}

QString pageOfList(const shell::Shell& shell) {
    const auto& pane = shell.pane();
    return page(toQString(shell.tree().text(shell.selection().scope)),
                line(QStringLiteral("List"), StatusLine::countText(pane.rowCount(), pane.unfilteredCount())));
}

} // namespace

DetailsDock::DetailsDock(QWidget* parent)
    : QDockWidget(QStringLiteral("Details"), parent), text_(new QTextBrowser(this)) {
    setObjectName(QStringLiteral("details"));
    text_->setAccessibleName(QStringLiteral("Details"));
    text_->setOpenLinks(false);
    text_->setFrameShape(QFrame::NoFrame);
    text_->setTabChangesFocus(true);
    text_->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    setWidget(text_);
}

void DetailsDock::update(const shell::Shell& shell, const std::vector<std::size_t>& rows) {
    QString html;
    if (!rows.empty()) {
        html = pageOfRows(shell, rows);
    } else if (shell.selection().scope != 0) {
        html = pageOfList(shell);
    }
    if (html != shown_) {
        shown_ = html;
        text_->setHtml(html);
    }
}

} // namespace desktop
