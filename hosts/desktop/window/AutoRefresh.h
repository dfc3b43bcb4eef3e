#pragma once

#include "hosts/desktop/activity/Operations.h"

#include <QActionGroup>
#include <QTimer>

class QMenu;

namespace desktop {

class ViewSettings;

// Reads the displayed list again by itself, every few seconds, if the user wants it. Waits while something would be
// disturbed: a menu, a dialog, an editor, a drag or another operation.
class AutoRefresh final : public QObject {
public:
    // All outlive it.
    AutoRefresh(Operations& operations, ViewSettings& settings, QWidget& window);

    // The choice of how often, for the menu of the window.
    void addTo(QMenu& menu);
    // 0 turns it off.
    void setInterval(int seconds);
    [[nodiscard]] int interval() const { return timer_.interval() / 1'000; }
    // What the timer does when it is due.
    void refreshIfIdle();

private:
    [[nodiscard]] bool isIdle() const;

    Operations& operations_;
    ViewSettings& settings_;
    QWidget& window_;
    QTimer timer_;
    QActionGroup choices_;
};

} // namespace desktop
