#pragma once

#include "console/Result.h"

#include <cstdint>

namespace console {

constexpr std::int32_t columnLeft = 0;      // LVCFMT_LEFT
constexpr std::int32_t automaticWidth = -1; // MMCLV_AUTO

// The columns of the result pane; widths are in pixels.
class IHeaderCtrl {
public:
    virtual ~IHeaderCtrl() = default;

    virtual Result InsertColumn(std::int32_t index, const char16_t* title, std::int32_t format, std::int32_t width) = 0;
    virtual Result GetColumnWidth(std::int32_t index, std::int32_t& width) = 0;
    virtual Result SetColumnWidth(std::int32_t index, std::int32_t width) = 0;
};

} // namespace console
