#include "tests/transcripts/desktop/Hands.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QTest>

namespace transcripts::hands {
namespace {

// Keys that no keyboard of this program has: the text goes along with them.
void typeKeys(QWidget& box, const QString& text) {
    for (const char32_t character : text.toStdU32String()) {
        const auto key = character == U'\n' ? Qt::Key_Return : Qt::Key_unknown;
        QTest::sendKeyEvent(QTest::Click, &box, key, QString::fromUcs4(&character, 1), Qt::NoModifier);
    }
}

} // namespace

void click(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton);
}

void click(QWidget& widget, QPoint place) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, place);
}

void click(QAbstractItemView& view, const QModelIndex& index) {
    view.setFocus(Qt::MouseFocusReason);
    view.scrollTo(index);
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, view.visualRect(index).center());
}

void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(&widget, key, modifiers);
}

void type(QWidget& box, const QString& text) {
    box.setFocus(Qt::TabFocusReason);
    press(box, Qt::Key_A, Qt::ControlModifier);
    press(box, Qt::Key_Delete);
    typeKeys(box, text);
}

void paste(QWidget& box, const QString& text) {
    QGuiApplication::clipboard()->setText(text);
    box.setFocus(Qt::TabFocusReason);
    press(box, Qt::Key_A, Qt::ControlModifier);
    press(box, Qt::Key_V, Qt::ControlModifier);
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
