#include "hosts/desktop/look/GlyphIcon.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>

namespace desktop {
namespace {

// All in a square of 16 by 16.
QPainterPath pathOf(GlyphIcon::Glyph glyph) {
    using Glyph = GlyphIcon::Glyph;
    QPainterPath path;
    const auto line = [&path](std::initializer_list<QPointF> points) {
        path.moveTo(*points.begin());
        for (const QPointF& point : points) {
            path.lineTo(point);
        }
    };
    switch (glyph) {
    case Glyph::back:
        line({{7.5, 3.5}, {3, 8}, {7.5, 12.5}});
        line({{3, 8}, {13, 8}});
        break;
    case Glyph::forward:
        line({{8.5, 3.5}, {13, 8}, {8.5, 12.5}});
        line({{13, 8}, {3, 8}});
        break;
    case Glyph::up:
        line({{3.5, 7.5}, {8, 3}, {12.5, 7.5}});
        line({{8, 3}, {8, 13}});
        break;
    case Glyph::refresh:
        path.arcMoveTo(QRectF(3, 3, 10, 10), 40);
        path.arcTo(QRectF(3, 3, 10, 10), 40, 290);
        line({{12.2, 1.8}, {11.9, 5}, {8.7, 4.7}});
        break;
    case Glyph::log:
        line({{3, 4}, {13, 4}});
        line({{3, 8}, {13, 8}});
        line({{3, 12}, {9, 12}});
        break;
    case Glyph::find:
        path.addEllipse(QRectF(2.5, 2.5, 8, 8));
        line({{9.4, 9.4}, {13.5, 13.5}});
        break;
    case Glyph::filter:
        line({{2.5, 3}, {13.5, 3}, {9.5, 8}, {9.5, 13}, {6.5, 11.5}, {6.5, 8}, {2.5, 3}});
        break;
    case Glyph::exportList:
        line({{8, 2.5}, {8, 10}});
        line({{4.8, 7}, {8, 10.2}, {11.2, 7}});
        line({{2.5, 10.5}, {2.5, 13.5}, {13.5, 13.5}, {13.5, 10.5}});
        break;
    }
    return path;
}

} // namespace

QIcon GlyphIcon::make(Glyph glyph) {
    return QIcon(new GlyphIcon(glyph));
}

void GlyphIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) {
    const auto group = mode == QIcon::Disabled ? QPalette::Disabled : QPalette::Active;
    const qreal scale = qMin(rect.width(), rect.height()) / 16.0;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.center().x() + 0.5 - 8 * scale, rect.center().y() + 0.5 - 8 * scale);
    painter->scale(scale, scale);
    painter->setBrush(Qt::NoBrush);
    const auto role = mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::ButtonText;
    painter->setPen(
        QPen(QGuiApplication::palette().color(group, role), 1.4, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->drawPath(pathOf(glyph_));
    painter->restore();
}

QPixmap GlyphIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    QPixmap pixmap(size);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    paint(&painter, QRect(QPoint(), size), mode, state);
    return pixmap;
}

} // namespace desktop
