#include "hosts/desktop/look/ColorScheme.h"

#include "hosts/desktop/look/ConsoleStyle.h"
#include "hosts/desktop/look/DarkStyle.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusVariant>
#include <QPalette>
#include <QStyle>

#include <utility>

namespace desktop {
namespace {

constexpr int portalTimeout = 300; // milliseconds
constexpr int prefersDark = 1;

// How the program looks before anything is applied.
struct PlatformLook {
    QString style = QApplication::style()->name();
    QPalette palette = QGuiApplication::palette();
};

const PlatformLook& platformLook() {
    static const PlatformLook look;
    return look;
}

ColorScheme& applied() {
    static ColorScheme look = ColorScheme::system;
    return look;
}

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

// The setting that desktops provide for programs of other toolkits.
bool systemPrefersDark() {
    auto question = QDBusMessage::createMethodCall(
        QStringLiteral("org.freedesktop.portal.Desktop"), QStringLiteral("/org/freedesktop/portal/desktop"),
        QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("Read"));
    question << QStringLiteral("org.freedesktop.appearance") << QStringLiteral("color-scheme");
    const auto bus = QDBusConnection::sessionBus();
    if (!bus.isConnected()) {
        return false;
    }
    const auto answer = bus.call(question, QDBus::Block, portalTimeout);
    if (answer.type() != QDBusMessage::ReplyMessage || answer.arguments().isEmpty()) {
        return false;
    }
    QVariant value = answer.arguments().front();
    while (value.canConvert<QDBusVariant>()) {
        value = value.value<QDBusVariant>().variant();
    }
    return value.toInt() == prefersDark;
}

QPalette lightPalette() {
    QPalette palette(QColor(0xF3, 0xF4, 0xF6), QColor(0xF3, 0xF4, 0xF6));
    const QColor text(0x1C, 0x20, 0x26);
    const QColor faint(0x8A, 0x90, 0x99);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, Qt::white);
    palette.setColor(QPalette::AlternateBase, QColor(0xF7, 0xF8, 0xFA));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0xFA, 0xFA, 0xFB));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::ToolTipBase, QColor(0xFF, 0xFB, 0xE6));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor(0x1F, 0x6F, 0xCB));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0xD3, 0xDC, 0xE8));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
    palette.setColor(QPalette::Link, QColor(0x1F, 0x6F, 0xCB));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0xD9, 0xDC, 0xE1));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0xE6, 0xE8, 0xEC));
    palette.setColor(QPalette::Disabled, QPalette::Button, QColor(0xEC, 0xEE, 0xF1));
    return palette;
}

QPalette darkPalette() {
    QPalette palette(QColor(0x2B, 0x2E, 0x33), QColor(0x2B, 0x2E, 0x33));
    const QColor text(0xE6, 0xE8, 0xEB);
    const QColor faint(0x86, 0x8C, 0x95);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::Base, QColor(0x1F, 0x22, 0x26));
    palette.setColor(QPalette::AlternateBase, QColor(0x24, 0x27, 0x2C));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::Button, QColor(0x38, 0x3C, 0x42));
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::BrightText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, QColor(0x3D, 0x42, 0x4A));
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    palette.setColor(QPalette::Highlight, QColor(0x2F, 0x7D, 0xD8));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Inactive, QPalette::Highlight, QColor(0x3B, 0x48, 0x58));
    palette.setColor(QPalette::Inactive, QPalette::HighlightedText, text);
    palette.setColor(QPalette::Link, QColor(0x6C, 0xB0, 0xF5));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x3A, 0x3E, 0x45));
    palette.setColor(QPalette::Disabled, QPalette::Base, QColor(0x33, 0x37, 0x3D));
    palette.setColor(QPalette::Disabled, QPalette::Button, QColor(0x30, 0x33, 0x39));
    return palette;
}

} // namespace

std::optional<ColorScheme> colorSchemeNamed(const QString& name) {
    if (name == QLatin1String("system")) {
        return ColorScheme::system;
    }
    if (name == QLatin1String("light")) {
        return ColorScheme::light;
    }
    if (name == QLatin1String("dark")) {
        return ColorScheme::dark;
    }
    return std::nullopt;
}

void applyColorScheme(ColorScheme look) {
    const auto& platform = platformLook();
    const auto before = std::exchange(applied(), look);
    // A platform with its own style and colours keeps them.
    const bool plain = platform.style.compare(QLatin1String("fusion"), Qt::CaseInsensitive) == 0;
    if (look == ColorScheme::system && (!plain || isDark(platform.palette))) {
        if (before != look) {
            QApplication::setStyle(platform.style);
            QApplication::setPalette(platform.palette);
        }
        return;
    }
    const bool dark = look == ColorScheme::dark || (look == ColorScheme::system && systemPrefersDark());
    QApplication::setStyle(dark ? new DarkStyle : new ConsoleStyle);
    QApplication::setPalette(dark ? darkPalette() : lightPalette());
}

ColorScheme appliedColorScheme() {
    return applied();
}

QPalette readOnlyPalette() {
    const QPalette whole = QGuiApplication::palette();
    const QColor disabled = whole.color(QPalette::Disabled, QPalette::Base);
    const bool differs = disabled != whole.color(QPalette::Active, QPalette::Base);
    QPalette palette;
    palette.setColor(QPalette::Base, differs ? disabled : whole.color(QPalette::Window));
    return palette;
}

} // namespace desktop
