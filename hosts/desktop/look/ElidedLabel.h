#pragma once

#include <QLabel>

namespace desktop {

// A line of plain text that is elided when it does not fit, and then shown whole in a tool tip. A long text does not
// push anything else out of the window.
class ElidedLabel final : public QLabel {
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void setLine(const QString& text);
    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    bool event(QEvent* event) override;
};

} // namespace desktop
