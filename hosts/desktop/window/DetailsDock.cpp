#include "hosts/desktop/window/DetailsDock.h"

#include "hosts/desktop/look/Text.h"
#include "hosts/desktop/window/StatusLine.h"

#include <QTextBrowser>

namespace desktop {
namespace {

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
    return page(toQString(shell.pane().cell(place, 0)), lines);
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

void DetailsDock::update(const shell::Shell& shell) {
    const auto place = shell.pane().indexOf(shell.selection().row);
    QString html;
    if (place) {
        html = pageOfRow(shell, *place);
    } else if (shell.selection().scope != 0) {
        html = pageOfList(shell);
    }
    if (html != shown_) {
        shown_ = html;
        text_->setHtml(html);
    }
}

} // namespace desktop
