#pragma once

#include <QTreeView>

namespace desktop {

// A view that asks for the room of eight rows and of its columns. The first key that moves along its rows selects the
// row that has the focus, so that a list with a single row can be used by the keyboard too.
class RoomyView final : public QTreeView {
public:
    RoomyView();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    [[nodiscard]] QSize roomFor(int rows, int width) const;
};

} // namespace desktop
