#pragma once

#include "console/IImageList.h"

#include <QIcon>

#include <map>
#include <utility>

namespace desktop {

// The icons that the nodes point into, one drawing for each index of the two strips, sharp at any scale. For the
// thread of the windows.
class IconStrips {
public:
    // Empty for a strip or an index that is not there.
    QIcon icon(const console::ImageStrip& strip, int index) const;

    // How many icons the strip has; 0 for one that is not there.
    static int count(const console::ImageStrip& strip);
    // The program's own icon.
    static QIcon application();

private:
    mutable std::map<std::pair<std::int32_t, int>, QIcon> icons_;
};

} // namespace desktop
