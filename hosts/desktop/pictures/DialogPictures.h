#pragma once

#include <QImage>
#include <QString>

#include <utility>
#include <vector>

namespace desktop {

// Pictures of every dialog of the product and of a message box, each with its name.
std::vector<std::pair<QString, QImage>> dialogPictures();

} // namespace desktop
