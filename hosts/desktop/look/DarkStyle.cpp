#include "hosts/desktop/look/DarkStyle.h"

#include <QFrame>
#include <QStyleOption>

#include <functional>

namespace desktop {
namespace {

// The plain style draws outlines in the window's colour at two thirds of its brightness. On a dark window that is
// hardly visible, so the style gets a brighter colour to start from.
constexpr QRgb windowOfOutlines = 0xFFB4BCC8;
constexpr QRgb windowOfFaintOutlines = 0xFF868C95;

template <class Option>
bool draw(const QStyleOption* option, const QPalette& palette, const std::function<void(const Option&)>& drawing) {
    const auto* const given = qstyleoption_cast<const Option*>(option);
    if (given == nullptr) {
        return false;
    }
    Option changed(*given);
    changed.palette = palette;
    drawing(changed);
    return true;
}

} // namespace

QPalette DarkStyle::outlined(const QPalette& palette) const {
    if (key_ != palette.cacheKey()) {
        key_ = palette.cacheKey();
        outlined_ = palette;
        outlined_.setColor(QPalette::Window, QColor::fromRgb(windowOfOutlines));
        outlined_.setColor(QPalette::Disabled, QPalette::Window, QColor::fromRgb(windowOfFaintOutlines));
    }
    QPalette result = outlined_;
    result.setCurrentColorGroup(palette.currentColorGroup());
    return result;
}

void DarkStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    const auto plain = [&](const QStyleOption& changed) {
        ConsoleStyle::drawPrimitive(element, &changed, painter, widget);
    };
    bool drawn = false;
    switch (element) {
    case PE_IndicatorCheckBox:
    case PE_IndicatorRadioButton:
        drawn = draw<QStyleOptionButton>(option, outlined(option->palette), plain);
        break;
    case PE_FrameLineEdit:
        drawn = draw<QStyleOptionFrame>(option, outlined(option->palette), plain);
        break;
    case PE_Frame: {
        const auto* const frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        drawn = frame != nullptr && frame->frameShape == QFrame::StyledPanel &&
                draw<QStyleOptionFrame>(option, outlined(option->palette), plain);
        break;
    }
    default:
        break;
    }
    if (!drawn) {
        ConsoleStyle::drawPrimitive(element, option, painter, widget);
    }
}

void DarkStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                                   const QWidget* widget) const {
    const auto plain = [&](const QStyleOptionComplex& changed) {
        ConsoleStyle::drawComplexControl(control, &changed, painter, widget);
    };
    const bool drawn = (control == CC_SpinBox && draw<QStyleOptionSpinBox>(option, outlined(option->palette), plain)) ||
                       (control == CC_ComboBox && draw<QStyleOptionComboBox>(option, outlined(option->palette), plain));
    if (!drawn) {
        ConsoleStyle::drawComplexControl(control, option, painter, widget);
    }
}

} // namespace desktop
