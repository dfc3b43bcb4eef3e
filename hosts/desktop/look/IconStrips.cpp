#include "hosts/desktop/look/IconStrips.h"

#include "hosts/desktop/look/SvgIcon.h"

#include <array>

namespace desktop {
namespace {

struct Strip {
    console::ImageStrip ids;
    const char* folder;
    int count;
};

constexpr std::array strips{Strip{console::commonStrip, "common", 22},
                            Strip{console::driverAndShortIdStrip, "drivers", 17}};

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

int IconStrips::count(const console::ImageStrip& strip) {
    const Strip* const found = find(strip);
    return found != nullptr ? found->count : 0;
}

QIcon IconStrips::application() {
    return SvgIcon::make(QStringLiteral(":/icons/vantrel.svg"));
}

} // namespace desktop
