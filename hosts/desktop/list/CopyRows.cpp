#include "hosts/desktop/list/CopyRows.h"

#include "hosts/desktop/look/Text.h"
#include "shell/ListClip.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

#include <memory>

namespace desktop {

void copyRows(const shell::Table& table) {
    auto clip = shell::clipOf(table);
    if (table.rowCount == 1) {
        clip.text.pop_back(); // a single row can be pasted into a line of text
    }
    auto data = std::make_unique<QMimeData>();
    data->setText(toQString(clip.text));
    data->setHtml(toQString(clip.html));
    QGuiApplication::clipboard()->setMimeData(data.release());
}

void copyText(const QString& text) {
    QGuiApplication::clipboard()->setText(text);
}

} // namespace desktop
