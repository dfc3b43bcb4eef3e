#pragma once

#include <QTreeView>

namespace desktop {

// A view that asks for the room of eight rows and of its columns.
class RoomyView final : public QTreeView {
public:
    RoomyView();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    [[nodiscard]] QSize roomFor(int rows, int width) const;
};

} // namespace desktop
