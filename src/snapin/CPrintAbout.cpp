#include "snapin/CPrintAbout.h"

#include "console/IImageList.h"
#include "snapin/StringTable.h"

#include <algorithm>
#include <new>

namespace snapin {
namespace {

constexpr std::size_t longestText = 255; // the console's buffer also holds a terminator
constexpr std::int32_t smallSize = 16;
constexpr std::int32_t largeSize = 32;

} // namespace

CPrintAbout::CPrintAbout(ModuleResources& resources)
    : resources_(resources),
      small_(resources.loadBitmap(resourceId::smallImage, smallSize)),
      large_(resources.loadBitmap(resourceId::largeImage, largeSize)),
      smallOpen_(resources.loadBitmap(resourceId::smallOpenImage, smallSize)),
      icon_(resources.loadIcon(resourceId::aboutIcon)) {}

console::Result CPrintAbout::GetSnapinDescription(wire::WideString& text) const {
    return load(resourceId::description, text);
}

console::Result CPrintAbout::GetProvider(wire::WideString& text) const {
    return load(resourceId::provider, text);
}

console::Result CPrintAbout::GetSnapinVersion(wire::WideString& text) const {
    return load(resourceId::version, text);
}

console::Result CPrintAbout::GetSnapinImage(ImageHandle& icon) const {
    icon = icon_;
    return console::Result::ok;
}

console::Result CPrintAbout::GetStaticFolderImage(ImageHandle& small, ImageHandle& smallOpen, ImageHandle& large,
                                                  std::uint32_t& mask) const {
    small = small_;
    smallOpen = smallOpen_;
    large = large_;
    mask = console::imageMask;
    return small_ != 0 && smallOpen_ != 0 && large_ != 0 ? console::Result::ok : console::Result::failed;
}

console::Result CPrintAbout::load(std::int32_t id, wire::WideString& text) const {
    try {
        auto loaded = resources_.loadString(id);
        if (!loaded || loaded->empty()) {
            return console::Result::failed;
        }
        loaded->resize(std::min(loaded->size(), longestText));
        text = *std::move(loaded);
        return console::Result::ok;
    } catch (const std::bad_alloc&) {
        return console::Result::outOfMemory;
    }
}

} // namespace snapin
