#pragma once

#include "hosts/desktop/look/ColorScheme.h"

#include <QApplication>
#include <QStyle>

namespace desktoptest {

// Whatever a test does to the look of the program, afterwards it is that of the test's program again.
class KeptLook {
public:
    KeptLook() = default;
    explicit KeptLook(desktop::ColorScheme look) { desktop::applyColorScheme(look); }
    KeptLook(const KeptLook&) = delete;
    KeptLook& operator=(const KeptLook&) = delete;
    ~KeptLook() {
        desktop::applyColorScheme(desktop::ColorScheme::system);
        QApplication::setStyle(style_);
        QApplication::setPalette(palette_);
    }

private:
    QString style_ = QApplication::style()->name();
    QPalette palette_ = QApplication::palette();
};

} // namespace desktoptest
