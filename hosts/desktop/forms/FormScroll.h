#pragma once

#include <QScrollArea>

namespace desktop {

// Holds a dialog's surface and asks for as much room as that needs, up to the size of the screen; beyond that it
// scrolls.
class FormScroll final : public QScrollArea {
public:
    explicit FormScroll(QWidget* parent);

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    // Makes the dialog grow with its content.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QSize withinScreen(QSize size) const;
};

} // namespace desktop
