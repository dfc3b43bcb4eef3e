#pragma once

#include <QTabWidget>

namespace desktop {

// The sheets into which a dialog is divided that would be higher than the screen.
class SheetTabs final : public QTabWidget {
public:
    SheetTabs();

    // Brings the sheets that the widget is on to the front.
    static void reveal(const QWidget& widget);
};

} // namespace desktop
