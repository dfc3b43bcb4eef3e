#pragma once

#include <QImage>

namespace desktop {

// All icons with their numbers, small and large, on the background of a list.
QImage iconSheet();

} // namespace desktop
