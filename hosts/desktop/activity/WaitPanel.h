#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

namespace desktop {

// Shows what the console is waiting for, with a Cancel button; lies over the lower edge of a window.
class WaitPanel final : public QFrame {
public:
    explicit WaitPanel(QWidget& window);

    void setText(const QString& text);
    std::function<void()> onCancel;

private:
    void place();

    QLabel* label_;
    QPushButton* cancel_;
};

} // namespace desktop
