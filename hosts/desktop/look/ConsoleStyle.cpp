#include "hosts/desktop/look/ConsoleStyle.h"

#include <QPainter>
#include <QStyleOption>
#include <QWidget>

namespace desktop {
namespace {

// The icon as it looks on a selection, whatever mode it is then asked for.
QIcon selectedIcon(const QIcon& icon, int side, qreal ratio) {
    const QPixmap drawn = icon.pixmap(QSize(side, side), ratio, QIcon::Selected);
    QIcon selected(drawn);
    selected.addPixmap(drawn, QIcon::Active);
    return selected;
}

// The plain style draws the default button as if it had the focus.
void drawFocusOn(const QStyleOption& button, QPainter& painter) {
    painter.save();
    painter.setPen(QPen(button.palette.color(QPalette::ButtonText), 1, Qt::DotLine));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(button.rect.adjusted(0, 0, -1, -1));
    painter.restore();
}

} // namespace

ConsoleStyle::ConsoleStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void ConsoleStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
    const auto* const item = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    const bool isSelected = option->state.testFlag(State_Selected) && option->state.testFlag(State_Enabled);
    if (element == CE_MenuItem && isSelected && item != nullptr && !item->icon.isNull()) {
        QStyleOptionMenuItem changed(*item);
        const qreal ratio = widget != nullptr ? widget->devicePixelRatioF() : 1;
        changed.icon = selectedIcon(item->icon, pixelMetric(PM_SmallIconSize, option, widget), ratio);
        QProxyStyle::drawControl(element, &changed, painter, widget);
        return;
    }
    QProxyStyle::drawControl(element, option, painter, widget);
    const bool isFocused = option->state.testFlag(State_HasFocus) && option->state.testFlag(State_KeyboardFocusChange);
    if (element == CE_PushButtonLabel && isFocused) {
        drawFocusOn(*option, *painter);
    }
}

void ConsoleStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
    if (element == PE_IndicatorBranch && option->state.testFlag(State_Selected)) {
        const bool hasFocus = option->state.testFlag(State_Active) && widget != nullptr && widget->hasFocus();
        const QColor onSelection =
            option->palette.color(hasFocus ? QPalette::Active : QPalette::Inactive, QPalette::HighlightedText);
        QStyleOption changed(*option);
        changed.palette.setColor(QPalette::WindowText, onSelection);
        changed.palette.setColor(QPalette::Text, onSelection);
        QProxyStyle::drawPrimitive(element, &changed, painter, widget);
        return;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

int ConsoleStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* answer) const {
    return hint == SH_DialogButtonBox_ButtonsHaveIcons ? 0 : QProxyStyle::styleHint(hint, option, widget, answer);
}

} // namespace desktop
