#pragma once

#include <QImage>

class QWidget;

namespace desktop {

// A picture of a dialog that is shown, in a plain frame with its title.
QImage framed(QWidget& dialog);

} // namespace desktop
