#include "shell/Row.h"

namespace shell {

const char16_t* textOf(const Row& row, std::int32_t column) {
    console::ResultItemFields item{.mask = console::resultMask::text, .bScopeItem = row.isScopeItem(), .nCol = column};
    const bool answered = console::succeeded(row.node->GetResultPaneInfo(item)) && item.str != console::textCallback;
    return answered ? item.str : nullptr;
}

wire::WideStringView cellOf(const Row& row, std::int32_t column) {
    const char16_t* const text = textOf(row, column);
    return text != nullptr ? wire::WideStringView(text) : wire::WideStringView();
}

} // namespace shell
