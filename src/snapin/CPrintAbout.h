#pragma once

#include "console/Result.h"
#include "snapin/ModuleResources.h"

#include <cstdint>

namespace snapin {

// Answers the console's questions about the product.
class CPrintAbout {
public:
    // Loads the four images. The resources outlive it.
    explicit CPrintAbout(ModuleResources& resources);

    // Result::failed, and no change, for a text that the module does not contain.
    console::Result GetSnapinDescription(wire::WideString& text) const;
    console::Result GetProvider(wire::WideString& text) const;
    console::Result GetSnapinVersion(wire::WideString& text) const;
    console::Result GetSnapinImage(ImageHandle& icon) const;
    // Result::failed when any of the images is missing. The mask is the transparent colour.
    console::Result GetStaticFolderImage(ImageHandle& small, ImageHandle& smallOpen, ImageHandle& large,
                                         std::uint32_t& mask) const;

private:
    console::Result load(std::int32_t id, wire::WideString& text) const;

    ModuleResources& resources_;
    ImageHandle small_;
    ImageHandle large_;
    ImageHandle smallOpen_;
    ImageHandle icon_;
};

} // namespace snapin
