#pragma once

#include "hosts/desktop/look/ConsoleStyle.h"

#include <QPalette>

namespace desktop {

// The plain style for dark windows, with visible outlines of boxes, check marks and radio buttons.
class DarkStyle final : public ConsoleStyle {
public:
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;

private:
    QPalette outlined(const QPalette& palette) const;

    // The key of the last palette passed in: the plain style caches its drawings by palette.
    mutable qint64 key_ = 0;
    mutable QPalette outlined_;
};

} // namespace desktop
