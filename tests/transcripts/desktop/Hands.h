#pragma once

#include "wire/Text.h"

#include <QAbstractItemView>
#include <QWidget>

class QMenu;
class QAction;

// What a person's hands do at a screen, as real events on real widgets.
namespace transcripts::hands {

void click(QWidget& widget);
void click(QWidget& widget, QPoint place);
void click(QAbstractItemView& view, const QModelIndex& index);
void press(QWidget& widget, Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
// In place of what the box holds.
void type(QWidget& box, const QString& text);
// The same from the clipboard.
void paste(QWidget& box, const QString& text);
// Asks for the menu of what is selected, by its key.
void askForMenu(QAbstractItemView& view);
void choose(QMenu& menu, QAction& action);

} // namespace transcripts::hands
