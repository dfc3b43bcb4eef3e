#include "tests/transcripts/desktop/Hands.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTest>

namespace transcripts::hands {

void click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void click(QAbstractItemView& view, const QModelIndex& index) {
    view.setFocus(Qt::MouseFocusReason);
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}

void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&widget, key, modifiers);
}

// Keys that no keyboard of this program has: the text goes along with them.
void type(QWidget& box, const QString& text) {
    box.setFocus(Qt::TabFocusReason);
    press(box, Qt::Key_A, Qt::ControlModifier);
    press(box, Qt::Key_Delete);
    for (const QChar unit : text) {
        const auto key = unit == QLatin1Char('\n') ? Qt::Key_Return : Qt::Key_unknown;
        QTest::sendKeyEvent(QTest::Click, &box, key, QString(unit), Qt::NoModifier);
    }
}

void askForMenu(QAbstractItemView& view) {
    const QPoint place = view.visualRect(view.currentIndex()).center();
    QContextMenuEvent event(QContextMenuEvent::Keyboard, place, view.viewport()->mapToGlobal(place));
    QApplication::sendEvent(&view, &event);
}

void choose(QMenu& menu, QAction& action) {
    QTest::mouseClick(&menu, Qt::LeftButton, {}, menu.actionGeometry(&action).center());
}

} // namespace transcripts::hands
