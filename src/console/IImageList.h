#pragma once

#include "console/Result.h"

#include <cstdint>

namespace console {

// The strips of images that nodes take their images from. The numbers are resource ids: 16 by 16 pixels, then 32 by 32.
struct ImageStrip {
    std::int32_t small = 203;
    std::int32_t large = 204;

    friend constexpr bool operator==(const ImageStrip&, const ImageStrip&) = default;
};

inline constexpr ImageStrip commonStrip{203, 204};           // 22 images
inline constexpr ImageStrip driverAndShortIdStrip{299, 300}; // 17 images
inline constexpr ImageStrip noStrip{0, 0};
constexpr std::uint32_t imageMask = 0x808000; // the transparent colour, 0x00BBGGRR

// Takes the images of a view.
class IImageList {
public:
    virtual ~IImageList() = default;

    // Result::failed when the host has no such strip.
    virtual Result ImageListSetStrip(const ImageStrip& strip, std::int32_t start, std::uint32_t mask) = 0;
};

} // namespace console
