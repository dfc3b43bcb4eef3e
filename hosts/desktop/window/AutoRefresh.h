#pragma once

#include "hosts/desktop/activity/Operations.h"

#include <QActionGroup>
#include <QTimer>

#include <functional>

class QMenu;

namespace desktop {

class ViewSettings;

// Reads the displayed list again by itself, every few seconds, if the user wants it. Waits while something would be
// disturbed: a menu, a dialog, an editor, a drag or another operation. Also waits after a list could not be read, until
// the user has read one: to connect to a server that does not answer takes seconds, in which nothing else can be done.
class AutoRefresh final : public QObject {
public:
    // All outlive it.
    AutoRefresh(Operations& operations, ViewSettings& settings, QWidget& window);

    // The choice of how often, for the menu of the window.
    void addTo(QMenu& menu);
    // Whether the displayed list could not be read.
    std::function<bool()> hasFailed;
    // In seconds, and remembered; 0 turns it off.
    void setInterval(int seconds);
    [[nodiscard]] int interval() const { return timer_.interval() / 1'000; }
    // What the timer does when it is due.
    void refreshIfIdle();

private:
    void start(int seconds);
    [[nodiscard]] bool isIdle() const;

    Operations& operations_;
    ViewSettings& settings_;
    QWidget& window_;
    QTimer timer_;
    QActionGroup choices_;
};

} // namespace desktop
