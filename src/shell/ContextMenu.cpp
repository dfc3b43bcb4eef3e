#include "shell/ContextMenu.h"

namespace shell {

console::Result ContextMenu::AddItem(const console::ContextMenuItem& item) {
    const bool separator = (item.fFlags & console::menuSeparator) != 0;
    if (!separator && item.strName == nullptr) {
        return console::Result::failed;
    }
    MenuItem& added = items.emplace_back();
    added.separator = separator;
    if (!separator) {
        added.text = item.strName;
        added.statusText = item.strStatusBarText != nullptr ? item.strStatusBarText : u"";
        added.id = item.lCommandID;
        added.checked = (item.fFlags & console::menuChecked) != 0;
        added.disabled = (item.fFlags & console::menuDisabled) != 0;
    }
    return console::Result::ok;
}

} // namespace shell
