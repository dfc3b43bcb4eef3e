#pragma once

#include "platform/UserInterface.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <initializer_list>
#include <span>

namespace console {

// Keys that are pressed one after the other, as one sequence: at most eight.
class KeySequence {
public:
    constexpr KeySequence() = default;
    constexpr KeySequence(std::initializer_list<platform::Key> keys) : count_(keys.size()) {
        std::ranges::copy(keys, keys_.begin());
    }

    [[nodiscard]] constexpr bool empty() const { return count_ == 0; }
    [[nodiscard]] constexpr std::span<const platform::Key> keys() const { return std::span(keys_).first(count_); }

private:
    std::array<platform::Key, 8> keys_{};
    std::size_t count_ = 0;
};

} // namespace console
