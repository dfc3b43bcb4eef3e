#pragma once

#include "console/IImageList.h"
#include "console/RowState.h"

#include <QIcon>

#include <map>
#include <string>
#include <utility>

namespace desktop {

// The icons of the nodes, one drawing for each index of the two strips, sharp at any scale. Used on the GUI thread
// only.
class IconStrips {
public:
    // Empty for a strip or an index that does not exist.
    QIcon icon(const console::ImageStrip& strip, int index) const;

    // The icon of a node of that class (console::CSnapInItem::className), with a mark for a severe state. Kinds of
    // rules, which share an index, are told apart.
    QIcon iconOf(const std::string& className, const console::ImageStrip& strip, int index,
                 console::Severity severity = console::Severity::none) const;

    // How many icons the strip has; 0 for one that does not exist.
    static int count(const console::ImageStrip& strip);
    // The program's own icon.
    static QIcon application();

private:
    QIcon plainIconOf(const std::string& className, const console::ImageStrip& strip, int index) const;

    mutable std::map<std::pair<std::int32_t, int>, QIcon> icons_;
    mutable std::map<std::string, QIcon> kinds_;
    mutable std::map<std::pair<qint64, console::Severity>, QIcon> marked_; // by the key of the icon without a mark
};

} // namespace desktop
