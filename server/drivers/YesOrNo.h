#pragma once

#include <cstdint>
#include <optional>

namespace server {

// A yes-or-no byte, which consoles send as a number or as its digit; empty for any other byte.
[[nodiscard]] constexpr std::optional<bool> yesOrNo(std::uint8_t byte) {
    if (byte == 0 || byte == '0') {
        return false;
    }
    if (byte == 1 || byte == '1') {
        return true;
    }
    return std::nullopt;
}

} // namespace server
