#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <span>

namespace fuzz {

// The bytes of a run: first those that choose what to do, then those that are read.
class Input {
public:
    Input(const std::uint8_t* data, std::size_t size) : rest_(data, size) {}

    // 0 when none is left.
    [[nodiscard]] std::uint8_t byte() {
        if (rest_.empty()) {
            return 0;
        }
        const std::uint8_t first = rest_.front();
        rest_ = rest_.subspan(1);
        return first;
    }

    [[nodiscard]] std::span<const std::uint8_t> rest() const { return rest_; }

private:
    std::span<const std::uint8_t> rest_;
};

} // namespace fuzz
