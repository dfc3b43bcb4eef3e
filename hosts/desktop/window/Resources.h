#pragma once

#include "snapin/ModuleResources.h"

namespace desktop {

// The texts of the program, and handles for its images, which are drawn from the strips.
class Resources final : public snapin::ModuleResources {
public:
    [[nodiscard]] std::optional<wire::WideString> loadString(std::int32_t id) const override;
    snapin::ImageHandle loadBitmap(std::int32_t id, std::int32_t size) override;
    snapin::ImageHandle loadIcon(std::int32_t id) override;
};

} // namespace desktop
