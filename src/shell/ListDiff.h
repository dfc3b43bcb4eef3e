#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace shell {

// One step of turning one list into another.
struct ListStep {
    enum class Kind : std::uint8_t { remove, insert };

    Kind kind = Kind::remove;
    std::size_t first = 0; // an insert takes its items from the same positions of the new list
    std::size_t count = 0;

    friend bool operator==(const ListStep&, const ListStep&) = default;
};

// The steps that turn `before` into `after`, to be carried out in order: first removals, then insertions. Empty when
// the common items are in a different order, or when it takes more than mostSteps. Ids are unique in each list.
constexpr std::size_t mostSteps = 256;
std::optional<std::vector<ListStep>> listSteps(std::span<const std::intptr_t> before,
                                               std::span<const std::intptr_t> after);

} // namespace shell
