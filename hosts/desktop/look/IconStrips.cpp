#include "hosts/desktop/look/IconStrips.h"

#include "hosts/desktop/look/SvgIcon.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <string_view>

namespace desktop {
namespace {

struct Strip {
    console::ImageStrip ids;
    const char* folder;
    int count;
};

constexpr std::array strips{Strip{console::commonStrip, "common", 22},
                            Strip{console::driverAndShortIdStrip, "drivers", 17}};

// The folders of rules, which all have the index of the rules themselves.
struct Kind {
    std::string_view className;
    const char* path;
};
constexpr int rulesIndex = 20;
constexpr std::array kinds{
    Kind{"class RuleSetNode", ":/icons/common/rule-groups.svg"}, Kind{"class PricePlansNode", ":/icons/drivers/11.svg"},
    Kind{"class PageLimitersNode", ":/icons/drivers/9.svg"}, Kind{"class ShortIdNode", ":/icons/drivers/13.svg"}};

// The sign of a message box in the lower right corner, at the sizes of lists on all scales.
QIcon withMark(const QIcon& plain, console::Severity severity) {
    const QIcon mark =
        SvgIcon::make(severity == console::Severity::error ? QStringLiteral(":/icons/boxes/stop.svg")
                                                           : QStringLiteral(":/icons/boxes/warning.svg"));
    QIcon marked;
    for (const int side : {16, 20, 24, 28, 32, 40, 48, 64}) {
        for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Disabled, QIcon::Selected}) {
            QPixmap pixmap = plain.pixmap(QSize(side, side), 1, mode);
            const int markSide = side * 5 / 8;
            QPainter painter(&pixmap);
            painter.drawPixmap(side - markSide, side - markSide, mark.pixmap(QSize(markSide, markSide), 1));
            painter.end();
            marked.addPixmap(pixmap, mode);
        }
    }
    return marked;
}

const Strip* find(const console::ImageStrip& ids) {
    for (const Strip& strip : strips) {
        if (strip.ids == ids) {
            return &strip;
        }
    }
    return nullptr;
}

} // namespace

QIcon IconStrips::icon(const console::ImageStrip& strip, int index) const {
    const Strip* const found = find(strip);
    if (found == nullptr || index < 0 || index >= found->count) {
        return {};
    }
    QIcon& icon = icons_[{strip.small, index}];
    if (icon.isNull()) {
        icon = SvgIcon::make(QStringLiteral(":/icons/%1/%2.svg").arg(QLatin1String(found->folder)).arg(index));
    }
    return icon;
}

QIcon IconStrips::iconOf(const std::string& className, const console::ImageStrip& strip, int index,
                         console::Severity severity) const {
    QIcon plain = plainIconOf(className, strip, index);
    if (severity == console::Severity::none || plain.isNull()) {
        return plain;
    }
    QIcon& icon = marked_[{plain.cacheKey(), severity}];
    if (icon.isNull()) {
        icon = withMark(plain, severity);
    }
    return icon;
}

QIcon IconStrips::plainIconOf(const std::string& className, const console::ImageStrip& strip, int index) const {
    const auto* const kind = std::ranges::find(kinds, std::string_view(className), &Kind::className);
    if (index != rulesIndex || kind == kinds.end()) {
        return icon(strip, index);
    }
    QIcon& icon = kinds_[className];
    if (icon.isNull()) {
        icon = SvgIcon::make(QString::fromLatin1(kind->path));
    }
    return icon;
}

int IconStrips::count(const console::ImageStrip& strip) {
    const Strip* const found = find(strip);
    return found != nullptr ? found->count : 0;
}

QIcon IconStrips::application() {
    return SvgIcon::make(QStringLiteral(":/icons/vantrel.svg"));
}

} // namespace desktop
