#include "shell/Row.h"

namespace shell {

wire::WideStringView cellOf(const Row& row, std::int32_t column) {
    console::ResultItemFields item{.mask = console::resultMask::text, .bScopeItem = row.isScopeItem(), .nCol = column};
    if (!console::succeeded(row.node->GetResultPaneInfo(item)) || item.str == nullptr ||
        item.str == console::textCallback) {
        return {};
    }
    return item.str;
}

} // namespace shell
