#pragma once

#include <cstdint>

// What a row of a price plan prices, and how.
namespace rules::priceKind {

constexpr std::uint8_t multiplier = 0; // a paper, by its base price and the plan's multipliers
constexpr std::uint8_t print = 1;      // a paper, absolutely
constexpr std::uint8_t copy = 2;       // the same
constexpr std::uint8_t scan = 3;       // the same, without duplex
constexpr std::uint8_t other = 4;      // a paper, absolutely; nobody makes such a row here, and it can't be edited
constexpr std::uint8_t areaMultiplier = 5;
constexpr std::uint8_t areaPrint = 6; // absolutely, without duplex

// Several rows of one paper may stand side by side when each is of another one of these kinds.
constexpr bool isAbsoluteOfPaper(std::uint8_t kind) {
    return kind >= print && kind <= other;
}

constexpr bool isArea(std::uint8_t kind) {
    return kind == areaMultiplier || kind == areaPrint;
}

constexpr bool isMultiplier(std::uint8_t kind) {
    return kind == multiplier || kind == areaMultiplier;
}

} // namespace rules::priceKind
