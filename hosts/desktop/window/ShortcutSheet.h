#pragma once

#include <QDialog>

class QMenuBar;

namespace desktop {

// All keys of the window: those of its menus, and those that tree, list and dialogs have by themselves.
class ShortcutSheet final : public QDialog {
public:
    ShortcutSheet(const QMenuBar& menus, QWidget* parent);
};

} // namespace desktop
