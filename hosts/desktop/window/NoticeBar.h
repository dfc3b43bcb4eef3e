#pragma once

#include <QFrame>

#include <functional>

class QLabel;
class QPushButton;

namespace desktop {

// Shows above the list what is wrong with it, and lets the user try again.
class NoticeBar final : public QFrame {
public:
    explicit NoticeBar(QWidget* parent = nullptr);

    // Hides itself when there is nothing to say.
    void say(const QString& text);
    [[nodiscard]] QString said() const;
    std::function<void()> onRetry;
    // Whether the bar offers to log in.
    void offerLogin(bool offered);
    std::function<void()> onLogin;

private:
    QPushButton* makeButton(const QString& text, const std::function<void()>& pressed);

    QLabel* label_;
    QPushButton* login_;
};

} // namespace desktop
