#include "hosts/desktop/forms/RoomyView.h"

#include "hosts/desktop/forms/RoomyRows.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

namespace desktop {
namespace {

constexpr int preferredRows = 8;
constexpr int fewestRows = 4;
constexpr int narrowest = 32; // characters
constexpr int widest = 110;

} // namespace

RoomyView::RoomyView() {
    setItemDelegate(new RoomyRows(this));
}

QSize RoomyView::sizeHint() const {
    const int character = fontMetrics().averageCharWidth();
    const int columns = isHeaderHidden() ? 0 : header()->length() + verticalScrollBar()->sizeHint().width();
    return roomFor(preferredRows, std::clamp(columns, narrowest * character, widest * character));
}

QSize RoomyView::minimumSizeHint() const {
    return roomFor(fewestRows, narrowest * fontMetrics().averageCharWidth());
}

void RoomyView::keyPressEvent(QKeyEvent* event) {
    const bool moves = event->matches(QKeySequence::MoveToPreviousLine) ||
                       event->matches(QKeySequence::MoveToNextLine) ||
                       event->matches(QKeySequence::MoveToPreviousPage) || event->matches(QKeySequence::MoveToNextPage);
    if (moves && !selectionModel()->hasSelection() && model()->rowCount() > 0) {
        setCurrentIndex(currentIndex().isValid() ? currentIndex() : model()->index(0, 0));
        event->accept();
        return;
    }
    QTreeView::keyPressEvent(event);
}

QSize RoomyView::roomFor(int rows, int width) const {
    const int row = std::max(fontMetrics().lineSpacing() + 4, rowHeight(model()->index(0, 0)));
    const int top = isHeaderHidden() ? 0 : header()->sizeHint().height();
    return {width + frameWidth() * 2, top + rows * row + frameWidth() * 2};
}

} // namespace desktop
