#include "hosts/desktop/pictures/Framed.h"

#include <QCoreApplication>
#include <QPainter>
#include <QPixmap>
#include <QWidget>

namespace desktop {
namespace {

constexpr int titleHeight = 32;
constexpr int border = 1;
constexpr int layoutRounds = 8;

} // namespace

void settle() {
    for (int round = 0; round < layoutRounds; ++round) {
        QCoreApplication::processEvents();
    }
}

QImage framed(QWidget& dialog) {
    settle();
    const QSize inner = dialog.size();
    QImage image(inner + QSize(border * 2, titleHeight + border), QImage::Format_RGB32);
    const QPalette palette = dialog.palette();
    image.fill(palette.color(QPalette::Mid));
    QPainter painter(&image);
    const QRect title(border, border, inner.width(), titleHeight - border);
    painter.fillRect(title, palette.color(QPalette::Button));
    QFont bold = dialog.font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(palette.color(QPalette::WindowText));
    painter.drawText(title, Qt::AlignCenter, dialog.windowTitle());
    painter.drawPixmap(border, titleHeight, dialog.grab());
    return image;
}

} // namespace desktop
