#pragma once

#include "wire/Text.h"

#include <cstdint>
#include <optional>

namespace snapin {

// An image of the host, only ever passed back to it; 0 is none.
using ImageHandle = std::intptr_t;

// The resources of a host's module, by their numbers.
class ModuleResources {
public:
    virtual ~ModuleResources() = default;

    [[nodiscard]] virtual std::optional<wire::WideString> loadString(std::int32_t id) const = 0;
    // 0 when there is no such image. Sizes are in pixels; images are square.
    virtual ImageHandle loadBitmap(std::int32_t id, std::int32_t size) = 0;
    virtual ImageHandle loadIcon(std::int32_t id) = 0;
};

} // namespace snapin
