#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace desktop {

// The plain style on dark windows, with boxes, check marks and radio buttons whose outlines can be seen.
class DarkStyle final : public QProxyStyle {
public:
    DarkStyle();

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    QPalette outlined(const QPalette& palette) const;

    // The last palette that was asked for: what the plain style remembers of its drawings, it finds by the palette.
    mutable qint64 key_ = 0;
    mutable QPalette outlined_;
};

} // namespace desktop
