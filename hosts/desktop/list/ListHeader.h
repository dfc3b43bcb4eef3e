#pragma once

#include <QHeaderView>

namespace desktop {

// The titles of the list. A title that does not fit ends in an ellipsis, also that of a column of numbers, which would
// otherwise lose its beginning.
class ListHeader final : public QHeaderView {
public:
    explicit ListHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {}

    // The title as it is drawn.
    [[nodiscard]] QString shownTitle(int column) const;

protected:
    void initStyleOptionForIndex(QStyleOptionHeader* option, int logicalIndex) const override;
};

} // namespace desktop
