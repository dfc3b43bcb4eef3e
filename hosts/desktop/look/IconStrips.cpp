#include "hosts/desktop/look/IconStrips.h"

#include "hosts/desktop/look/SvgIcon.h"

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

QIcon IconStrips::iconOf(const std::string& className, const console::ImageStrip& strip, int index) const {
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
