#pragma once

#include "hosts/desktop/pictures/DialogPictures.h"

namespace platform {
class SettingsStore;
} // namespace platform

namespace desktop {

// Pictures of the window at work on the sample estate: with the menu of an item of the tree, with a filter, after a
// move, and with a change that was refused. Logs in with the settings and the password; empty when that fails.
std::vector<NamedPicture> windowPictures(platform::SettingsStore& settings, const QString& password,
                                         const QString& path);

} // namespace desktop
