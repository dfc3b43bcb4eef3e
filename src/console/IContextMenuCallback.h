#pragma once

#include "console/Result.h"

#include <cstdint>

namespace console {

constexpr std::int32_t insertionPointPrimaryTop =
    static_cast<std::int32_t>(0xA0000000U);     // CCM_INSERTIONPOINTID_PRIMARY_TOP
constexpr std::int32_t insertionAllowedTop = 1; // CCM_INSERTIONALLOWED_TOP

// Bits of ContextMenuItem::fFlags.
constexpr std::int32_t menuDisabled = 0x1;    // MF_GRAYED: can't be chosen
constexpr std::int32_t menuChecked = 0x8;     // MF_CHECKED
constexpr std::int32_t menuSeparator = 0x800; // MF_SEPARATOR

// One entry on its way into a context menu (CONTEXTMENUITEM).
struct ContextMenuItem {
    const char16_t* strName = nullptr;
    const char16_t* strStatusBarText = nullptr;
    std::int32_t lCommandID = 0;
    std::int32_t lInsertionPointID = insertionPointPrimaryTop;
    std::int32_t fFlags = 0;
    std::int32_t fSpecialFlags = 0;
};

// Takes the entries of a context menu while it is being built.
class IContextMenuCallback {
public:
    virtual ~IContextMenuCallback() = default;

    virtual Result AddItem(const ContextMenuItem& item) = 0;
};

} // namespace console
