#pragma once

#include "console/IImageList.h"

namespace shell {

// Which strip of images a pane shows.
class ImageStrips final : public console::IImageList {
public:
    console::Result ImageListSetStrip(const console::ImageStrip& strip, std::int32_t start,
                                      std::uint32_t mask) override;

    [[nodiscard]] const console::ImageStrip& strip() const { return strip_; }

private:
    console::ImageStrip strip_ = console::noStrip;
};

} // namespace shell
