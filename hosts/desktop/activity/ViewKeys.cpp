#include "hosts/desktop/activity/ViewKeys.h"

#include "hosts/desktop/activity/Operations.h"

#include <QAbstractItemView>
#include <QApplication>
#include <QContextMenuEvent>

namespace desktop {

bool actsOnKey(QAbstractItemView& view, Operations& operations, const QKeyEvent& key) {
    if (key.key() == Qt::Key_F10 && key.modifiers() == Qt::ShiftModifier) {
        const QPoint place = view.visualRect(view.currentIndex()).bottomLeft();
        QContextMenuEvent menu(QContextMenuEvent::Keyboard, place, view.viewport()->mapToGlobal(place));
        QApplication::sendEvent(view.viewport(), &menu);
        return true;
    }
    if (key.key() == Qt::Key_Escape && operations.shell().cutNode() != nullptr) {
        operations.perform([](shell::Shell& console) {
            console.setCutNode(nullptr);
            return true;
        });
        return true;
    }
    return false;
}

} // namespace desktop
