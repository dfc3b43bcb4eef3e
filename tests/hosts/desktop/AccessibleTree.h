#pragma once

#include <QAccessible>

#include <string>
#include <vector>

namespace desktoptest {

// All that a screen reader finds, from a window down.
inline std::vector<QAccessibleInterface*> everythingOn(QAccessibleInterface& top) {
    std::vector<QAccessibleInterface*> all{&top};
    for (int i = 0; i < top.childCount(); ++i) {
        if (QAccessibleInterface* const child = top.child(i)) {
            const auto below = everythingOn(*child);
            all.insert(all.end(), below.begin(), below.end());
        }
    }
    return all;
}

inline std::string described(const QAccessibleInterface& each) {
    const QObject* const object = each.object();
    return "role " + std::to_string(each.role()) + " of a " +
           (object != nullptr ? object->metaObject()->className() : "part") + " \"" +
           each.text(QAccessible::Name).toStdString() + "\"";
}

} // namespace desktoptest
