#pragma once

#include <QFrame>

#include <functional>

class QLabel;

namespace desktop {

// Shows above the list what is wrong with it, and lets the user try again.
class NoticeBar final : public QFrame {
public:
    explicit NoticeBar(QWidget* parent = nullptr);

    // Hides itself when there is nothing to say.
    void say(const QString& text);
    [[nodiscard]] QString said() const;
    std::function<void()> onRetry;

private:
    QLabel* label_;
};

} // namespace desktop
