#include "hosts/desktop/tree/DragData.h"

#include <QCoreApplication>
#include <QMimeData>

#include <memory>

namespace desktop {

QMimeData* makeDragData(const shell::Target& target, const QString& name) {
    auto data = std::make_unique<QMimeData>();
    data->setData(dragFormat, QByteArray::number(QCoreApplication::applicationPid()) + ' ' +
                                  QByteArray::number(static_cast<qlonglong>(target.scope)) + ' ' +
                                  QByteArray::number(static_cast<qlonglong>(target.row)));
    data->setText(name);
    return data.release();
}

std::optional<shell::Target> draggedTarget(const QMimeData* data) {
    const auto parts = data != nullptr ? data->data(dragFormat).split(' ') : QList<QByteArray>();
    if (parts.size() != 3 || parts[0].toLongLong() != QCoreApplication::applicationPid()) {
        return std::nullopt;
    }
    return shell::Target{static_cast<console::ScopeId>(parts[1].toLongLong()),
                         static_cast<console::ResultId>(parts[2].toLongLong())};
}

} // namespace desktop
