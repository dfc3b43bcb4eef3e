#pragma once

#include <QProxyStyle>

namespace desktop {

// The plain style, with what it leaves black on a selection in the selection's colour, and with buttons of message
// boxes that carry a text and no picture.
class ConsoleStyle : public QProxyStyle {
public:
    ConsoleStyle();

    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* answer) const override;
};

} // namespace desktop
