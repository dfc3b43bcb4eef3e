#pragma once

#include <QScrollArea>

namespace desktop {

// Holds a dialog's surface and asks for as much room as that wants, up to what the screen has; then it scrolls.
class FormScroll final : public QScrollArea {
public:
    explicit FormScroll(QWidget* parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    // The dialog grows with what it shows.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QSize withinScreen(QSize size) const;
};

} // namespace desktop
