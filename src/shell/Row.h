#pragma once

#include "console/CSnapInItem.h"
#include "wire/Text.h"

#include <cstdint>
#include <memory>

namespace shell {

// A row of the result pane. Its texts stay with its node and are asked for when they are shown.
struct Row {
    std::shared_ptr<console::CSnapInItem> node;
    console::ResultId id = 0; // below 0: the scope item with the opposite number, listed by the console itself
    std::int32_t image = 0;

    [[nodiscard]] bool isScopeItem() const { return id < 0; }
    [[nodiscard]] console::ScopeId scopeId() const { return -id; } // of a scope item
};

// The text of one column. Valid until the row's node is asked again; null when it returns none.
const char16_t* textOf(const Row& row, std::int32_t column);

// The same; empty when it returns none.
wire::WideStringView cellOf(const Row& row, std::int32_t column);

} // namespace shell
