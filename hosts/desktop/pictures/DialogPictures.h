#pragma once

#include <QImage>
#include <QString>

#include <utility>
#include <vector>

namespace desktop {

// Pictures of the dialogs that need no server and of a message box, each with its name.
std::vector<std::pair<QString, QImage>> dialogPictures();
// Pictures of the dialogs that show records of a server; requires a login.
std::vector<std::pair<QString, QImage>> serverDialogPictures();

} // namespace desktop
