#pragma once

#include <QScrollArea>

namespace desktop {

// Holds a dialog's surface and asks for as much room as that needs, up to the size of the screen; beyond that it
// scrolls, and keeps what has the keyboard focus in sight.
class FormScroll final : public QScrollArea {
public:
    explicit FormScroll(QWidget* parent);

    // An empty surface instead of the present one.
    QWidget& renew();
    // How much of the screen the part of the dialog below takes.
    void setHeightBelow(int height) { heightBelow_ = height; }
    // The largest surface that needs not scroll.
    [[nodiscard]] QSize room() const;
    // Discards what was measured before the widgets had their style.
    void layOutAnew();

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    // Makes the dialog grow with its content.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] QSize withinScreen(QSize size) const;

    QSize available_; // of the screen for which the dialog was arranged
    int heightBelow_ = 0;
};

} // namespace desktop
