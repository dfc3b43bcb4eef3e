#pragma once

#include <QImage>

class QWidget;

namespace desktop {

// Waits until all layouts are done.
void settle();

// A picture of a dialog that is shown, in a plain frame with its title.
QImage framed(QWidget& dialog);

} // namespace desktop
