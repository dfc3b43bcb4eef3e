#pragma once

#include <QImage>

class QWidget;

namespace desktop {

// Lets the layouts of what is shown come to rest.
void settle();

// A picture of a dialog that is shown, in a plain frame with its title.
QImage framed(QWidget& dialog);

} // namespace desktop
