#pragma once

#include <cstdint>
#include <vector>

namespace console {

// An entry of a context menu; the texts are literals. Id 0 is a separator.
struct MenuEntry {
    const char16_t* text = nullptr;
    const char16_t* statusBarText = nullptr;
    std::int32_t id = 0;
    bool checked = false;
    bool disabled = false;
};

inline constexpr MenuEntry separator{};

// The entries of a context menu at one moment.
using MenuEntries = std::vector<MenuEntry>;

} // namespace console
