#pragma once

#include <QTreeView>

namespace desktop {

// A view that asks for the room of eight rows and of its columns.
class RoomyView final : public QTreeView {
public:
    RoomyView();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QSize roomFor(int rows, int width) const;
};

} // namespace desktop
