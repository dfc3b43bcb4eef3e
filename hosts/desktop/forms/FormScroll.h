#pragma once

#include <QScrollArea>

namespace desktop {

// Holds a dialog's surface and asks for as much room as that needs, up to the size of the screen; beyond that it
// scrolls.
class FormScroll final : public QScrollArea {
public:
    explicit FormScroll(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    // Makes the dialog grow with its content.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize withinScreen(QSize size) const;
};

} // namespace desktop
