#include "hosts/desktop/window/LookChoices.h"

#include <QMenu>

#include <algorithm>
#include <array>

namespace desktop {
namespace {

struct NamedLook {
    ColorScheme look;
    const char* name;
    const char* text;
};
constexpr std::array namedLooks{NamedLook{ColorScheme::system, "system", "Like the &System"},
                                NamedLook{ColorScheme::light, "light", "&Light"},
                                NamedLook{ColorScheme::dark, "dark", "&Dark"}};
struct NamedScale {
    int percent;
    const char* text;
};
constexpr std::array namedScales{NamedScale{100, "1&00 %"}, NamedScale{125, "12&5 %"}, NamedScale{150, "&150 %"},
                                 NamedScale{200, "&200 %"}};
const QString lookSetting = QStringLiteral("look");
const QString scaleSetting = QStringLiteral("scale");

} // namespace

LookChoices::LookChoices(ViewSettings& settings) : settings_(settings), looks_(this), scales_(this) {}

ColorScheme LookChoices::savedLook(const ViewSettings& settings) {
    return colorSchemeNamed(QString::fromLatin1(settings.state(lookSetting))).value_or(ColorScheme::system);
}

int LookChoices::savedScale(const ViewSettings& settings) {
    const int scale = settings.state(scaleSetting).toInt();
    const bool isOffered = std::ranges::find(namedScales, scale, &NamedScale::percent) != namedScales.end();
    return isOffered ? scale : namedScales.front().percent;
}

void LookChoices::addTo(QMenu& menu) {
    addLooks(*menu.addMenu(QStringLiteral("Loo&k")));
    addScales(*menu.addMenu(QStringLiteral("&Scale at Next Start")));
}

void LookChoices::addLooks(QMenu& menu) {
    for (const auto& [look, name, text] : namedLooks) {
        QAction* const action = looks_.addAction(QString::fromLatin1(text));
        action->setCheckable(true);
        action->setChecked(look == appliedColorScheme());
        connect(action, &QAction::triggered, this, [this, look = look, name = name] {
            applyColorScheme(look);
            settings_.setState(lookSetting, name);
        });
    }
    menu.addActions(looks_.actions());
}

void LookChoices::addScales(QMenu& menu) {
    const int saved = savedScale(settings_);
    for (const auto& [scale, text] : namedScales) {
        QAction* const action = scales_.addAction(QString::fromLatin1(text));
        action->setCheckable(true);
        action->setChecked(scale == saved);
        connect(action, &QAction::triggered, this, [this, scale = scale] {
            settings_.setState(scaleSetting, QByteArray::number(scale));
            if (onMessage) {
                onMessage(QStringLiteral("The window will have a scale of %1 % when it is started again.").arg(scale));
            }
        });
    }
    menu.addActions(scales_.actions());
}

} // namespace desktop
