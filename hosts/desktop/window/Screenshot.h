#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace desktop {

// Writes a picture of the window, once everything in it is laid out. What went wrong, for people; nothing when it is
// written.
std::optional<QString> takeScreenshot(QWidget& window, const QString& file);

} // namespace desktop
