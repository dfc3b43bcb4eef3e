#pragma once

#include "snapin/CPrintAbout.h"

#include <QDialog>

namespace desktop {

// Says what this program is.
class AboutBox final : public QDialog {
public:
    AboutBox(const snapin::CPrintAbout& about, const QIcon& icon, QWidget* owner);
};

} // namespace desktop
