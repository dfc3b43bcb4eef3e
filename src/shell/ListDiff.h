#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace shell {

// One step on the way from one list to another.
struct ListStep {
    enum class Kind : std::uint8_t { remove, insert };

    Kind kind = Kind::remove;
    std::size_t first = 0; // an insert takes its items from the same places of the later list
    std::size_t count = 0;

    friend bool operator==(const ListStep&, const ListStep&) = default;
};

// The steps that make `after` of `before`, one carried out after the other: first removals, then insertions. Nothing
// when what both have stands in another order, or when it takes more than mostSteps. Ids are unique in each list.
constexpr std::size_t mostSteps = 256;
std::optional<std::vector<ListStep>> listSteps(std::span<const std::intptr_t> before,
                                               std::span<const std::intptr_t> after);

} // namespace shell
