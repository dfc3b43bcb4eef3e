#pragma once

#include <QObject>
#include <QPointer>

#include <functional>

class QWidget;

namespace desktop {

// While it exists, user input reaches only one widget and its children.
class InputBlocker final : public QObject {
public:
    // Called for Escape, and for a window that is asked to close.
    explicit InputBlocker(const QWidget& open, std::function<void()> onGiveUp);
    ~InputBlocker() override;

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    bool letsThrough(const QObject* receiver) const;

    QPointer<const QWidget> open_;
    std::function<void()> onGiveUp_;
};

} // namespace desktop
