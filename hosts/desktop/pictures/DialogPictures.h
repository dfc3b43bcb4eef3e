#pragma once

#include <QImage>
#include <QString>

#include <utility>
#include <vector>

namespace desktop {

using NamedPicture = std::pair<QString, QImage>;

// Pictures of the dialogs that need no server and of a message box, each with its name.
std::vector<NamedPicture> dialogPictures();
// Pictures of the dialogs that show records of a server; requires a login.
std::vector<NamedPicture> serverDialogPictures();

} // namespace desktop
