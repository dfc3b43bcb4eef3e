#pragma once

#include <QImage>
#include <QString>

#include <optional>

namespace platform {
class SettingsStore;
} // namespace platform

namespace desktop {

// A picture of the window with the context menu of an item of the tree. Logs in with the settings and the password;
// empty when that fails.
std::optional<QImage> menuPicture(platform::SettingsStore& settings, const QString& password, const QString& path);

} // namespace desktop
