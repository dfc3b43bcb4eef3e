#pragma once

class QAbstractItemView;
class QKeyEvent;

namespace desktop {

class Operations;

// The keys that tree and list have in common: Shift+F10 opens the menu of the current item, since not all platforms
// make a menu key of it, and Escape puts back what was cut. False for any other key.
bool actsOnKey(QAbstractItemView& view, Operations& operations, const QKeyEvent& key);

} // namespace desktop
