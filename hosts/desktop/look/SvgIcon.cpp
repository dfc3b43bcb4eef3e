#include "hosts/desktop/look/SvgIcon.h"

#include <QPainter>
#include <QPixmap>
#include <QSvgRenderer>

#include <algorithm>

// Makes the linker include the drawings, which come from a static library.
static void initializeIcons() {
    Q_INIT_RESOURCE(icons);
}

namespace desktop {
namespace {

constexpr double faded = 0.45;

} // namespace

QIcon SvgIcon::make(const QString& path) {
    initializeIcons();
    auto drawing = std::make_shared<QSvgRenderer>(path);
    return drawing->isValid() ? QIcon(new SvgIcon(std::move(drawing))) : QIcon();
}

void SvgIcon::paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State /*state*/) {
    const int side = std::min(rect.width(), rect.height());
    const int left = rect.x() + (rect.width() - side) / 2;
    const int top = rect.y() + (rect.height() - side) / 2;
    const QRectF square(left, top, side, side);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    if (mode == QIcon::Disabled) {
        painter->setOpacity(painter->opacity() * faded);
    }
    drawing_->render(painter, square);
    painter->restore();
}

QPixmap SvgIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
    const QSize square = actualSize(size, mode, state);
    QPixmap& pixmap = drawn_[{square.width(), static_cast<int>(mode == QIcon::Disabled)}];
    if (pixmap.isNull() && !square.isEmpty()) {
        pixmap = QPixmap(square);
        pixmap.fill(Qt::transparent);
        QPainter painter(&pixmap);
        paint(&painter, QRect(QPoint(), square), mode, state);
    }
    return pixmap;
}

QSize SvgIcon::actualSize(const QSize& size, QIcon::Mode /*mode*/, QIcon::State /*state*/) {
    const int side = std::min(size.width(), size.height());
    return {side, side};
}

} // namespace desktop
