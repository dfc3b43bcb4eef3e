#pragma once

#include <QFrame>
#include <QTimer>

#include <functional>

class QLabel;
class QPushButton;

namespace desktop {

// Says above the list for ten seconds what has been done, and offers to undo it.
class UndoBar final : public QFrame {
public:
    explicit UndoBar(QWidget* parent = nullptr);

    // Replaces what was offered before.
    void offer(const QString& text, std::function<void()> undo);
    void withdraw();
    // Does it, and withdraws the offer; does nothing without one.
    void undo();
    [[nodiscard]] bool isOffered() const { return undo_ != nullptr; }
    [[nodiscard]] QString said() const;
    // Called when something is offered, or nothing any more.
    std::function<void()> onChange;

private:
    void timeOut();

    QLabel* label_;
    QPushButton* button_;
    QTimer timer_{this};
    std::function<void()> undo_;
};

} // namespace desktop
