#include "hosts/desktop/window/Resources.h"

#include "snapin/StringTable.h"

namespace desktop {

std::optional<wire::WideString> Resources::loadString(std::int32_t id) const {
    const auto text = snapin::stringTable(id);
    return text.empty() ? std::nullopt : std::optional<wire::WideString>(text);
}

snapin::ImageHandle Resources::loadBitmap(std::int32_t id, std::int32_t /*size*/) {
    return id;
}

snapin::ImageHandle Resources::loadIcon(std::int32_t id) {
    return id;
}

} // namespace desktop
