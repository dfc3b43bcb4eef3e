#include "hosts/desktop/list/ListHeader.h"

#include <QStyle>
#include <QStyleOptionHeader>

namespace desktop {

QString ListHeader::shownTitle(int column) const {
    QStyleOptionHeader option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, column);
    return option.text;
}

void ListHeader::initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const {
    QHeaderView::initStyleOptionForIndex(option, logicalIndex);
    const int margin = style()->pixelMetric(QStyle::PM_HeaderMargin, option, this);
    int room = sectionSize(logicalIndex) - 2 * margin;
    if (isSortIndicatorShown() && sortIndicatorSection() == logicalIndex) {
        room -= style()->pixelMetric(QStyle::PM_HeaderMarkSize, option, this) + margin;
    }
    option->text = option->fontMetrics.elidedText(option->text, textElideMode(), room);
}

} // namespace desktop
