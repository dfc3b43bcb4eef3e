#include "hosts/desktop/window/Screenshot.h"

#include <QCoreApplication>
#include <QImageWriter>
#include <QPixmap>
#include <QWidget>

namespace desktop {
namespace {

constexpr int rounds = 8; // of layout work, each of which may cause more

} // namespace

std::optional<QString> takeScreenshot(QWidget& window, const QString& file) {
    for (int round = 0; round < rounds; ++round) {
        QCoreApplication::processEvents();
    }
    QImageWriter writer(file, "png");
    if (writer.write(window.grab().toImage())) {
        return std::nullopt;
    }
    return QStringLiteral("The picture could not be written to %1: %2").arg(file, writer.errorString());
}

} // namespace desktop
