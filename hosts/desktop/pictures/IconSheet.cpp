#include "hosts/desktop/pictures/IconSheet.h"

#include "hosts/desktop/look/IconStrips.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPalette>

namespace desktop {
namespace {

constexpr int cellWidth = 120;
constexpr int cellHeight = 64;
constexpr int columns = 8;
constexpr int small = 16;
constexpr int large = 48;
constexpr int gap = 8;

int rowsFor(int count) {
    return (count + columns - 1) / columns;
}

} // namespace

QImage iconSheet() {
    const IconStrips icons;
    const auto strips = {console::commonStrip, console::driverAndShortIdStrip};
    int rows = 0;
    for (const auto& strip : strips) {
        rows += rowsFor(IconStrips::count(strip));
    }
    const QPalette palette = QGuiApplication::palette();
    QImage image(columns * cellWidth + gap, rows * cellHeight + gap * 4, QImage::Format_RGB32);
    image.fill(palette.color(QPalette::Base));
    QPainter painter(&image);
    painter.setPen(palette.color(QPalette::PlaceholderText));
    int top = gap;
    for (const auto& strip : strips) {
        const int count = IconStrips::count(strip);
        for (int index = 0; index < count; ++index) {
            const QPoint place(gap + index % columns * cellWidth, top + index / columns * cellHeight);
            const QIcon icon = icons.icon(strip, index);
            painter.drawText(QRect(place, QSize(small + gap, small)), Qt::AlignLeft, QString::number(index));
            painter.drawPixmap(place + QPoint(0, small + gap), icon.pixmap(small, small));
            painter.drawPixmap(place + QPoint(small + gap * 2, 0), icon.pixmap(large, large));
        }
        top += rowsFor(count) * cellHeight + gap * 2;
    }
    return image;
}

} // namespace desktop
