#pragma once

#include <cstdint>

namespace console {

class CSnapInItem;

// A row of the scope tree as the console numbers it; 0 is none.
using ScopeId = std::intptr_t;
// A row of a result pane as the console numbers it; 0 is none.
using ResultId = std::intptr_t;

// Says that a row's text is asked for when it is shown, and not kept in the row.
inline const char16_t* const textCallback = reinterpret_cast<const char16_t*>(static_cast<std::intptr_t>(-1));

// Bits of ScopeItemFields::mask.
namespace scopeMask {
constexpr std::uint32_t text = 0x02;
constexpr std::uint32_t image = 0x04;
constexpr std::uint32_t openImage = 0x08;
constexpr std::uint32_t state = 0x10;
constexpr std::uint32_t param = 0x20;
constexpr std::uint32_t children = 0x40;
} // namespace scopeMask

// Bits of ResultItemFields::mask.
namespace resultMask {
constexpr std::uint32_t text = 0x02;
constexpr std::uint32_t image = 0x04;
constexpr std::uint32_t param = 0x10;
constexpr std::uint32_t index = 0x20;
} // namespace resultMask

// A node's row in the scope tree, as it passes between node and console.
struct ScopeItemFields {
    std::uint32_t mask =
        scopeMask::text | scopeMask::image | scopeMask::openImage | scopeMask::param | scopeMask::children;
    const char16_t* displayname = textCallback;
    std::int32_t nImage = 0;     // index into the strip of images
    std::int32_t nOpenImage = 0; // the same while the row is open
    std::uint32_t nState = 0;
    std::int32_t cChildren = 0;    // 0 for a leaf; any other number shows the expander
    CSnapInItem* lParam = nullptr; // the cookie: the node itself
    ScopeId relativeID = 0;        // the parent's row
    ScopeId ID = 0;                // this node's row, 0 until inserted
};

// A node's row in a result pane, as it passes between node and console.
struct ResultItemFields {
    std::uint32_t mask = resultMask::text | resultMask::image | resultMask::param;
    bool bScopeItem = false;
    ResultId itemID = 0;
    std::int32_t nIndex = 0;
    std::int32_t nCol = 0;
    const char16_t* str = textCallback;
    std::int32_t nImage = 0;
    std::uint32_t nState = 0;
    CSnapInItem* lParam = nullptr; // the cookie: the node itself
    std::int32_t iIndent = 0;
};

} // namespace console
