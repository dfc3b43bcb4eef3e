#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace desktop {

// Writes a picture of the window once everything in it is laid out. Returns an error text, or nothing on success.
std::optional<QString> takeScreenshot(QWidget& window, const QString& file);

} // namespace desktop
