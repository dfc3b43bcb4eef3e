#include "shell/ImageStrips.h"

namespace shell {

console::Result ImageStrips::ImageListSetStrip(const console::ImageStrip& strip, std::int32_t /*start*/,
                                               std::uint32_t /*mask*/) {
    strip_ = strip;
    return console::Result::ok;
}

} // namespace shell
