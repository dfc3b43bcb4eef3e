#pragma once

#include "console/IContextMenuCallback.h"
#include "shell/MenuItem.h"

#include <vector>

namespace shell {

// Collects the entries of a context menu.
class ContextMenu final : public console::IContextMenuCallback {
public:
    console::Result AddItem(const console::ContextMenuItem& item) override;

    std::vector<MenuItem> items;
};

} // namespace shell
