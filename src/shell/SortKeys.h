#pragma once

#include "wire/Text.h"

#include <cstddef>
#include <cstdint>
#include <vector>

namespace shell {

// The texts or numbers by which rows are sorted, in one piece of memory rather than one for each row.
class SortKeys {
public:
    void reserve(std::size_t count) { keys_.reserve(count); }
    void add(wire::WideStringView text);
    // Numbers sort by value, after rows with an empty text.
    void add(std::int64_t number);
    // The positions of the texts, counted in the order in which they were added, sorted in natural order; equal ones as
    // added. Nothing can be added afterwards.
    std::vector<std::uint32_t> sorted(bool ascending);

    // A part of what was sorted last, with two equal texts or more.
    struct Tie {
        std::size_t begin = 0;
        std::size_t length = 0;
    };
    [[nodiscard]] const std::vector<Tie>& ties() const { return ties_; }

private:
    struct Key {
        std::uint64_t head = 0; // the first units after the prefix that all keys share
        std::size_t begin = 0;
        std::uint32_t length = 0;
        std::uint32_t place = 0;
    };

    void addKey(std::size_t begin);
    [[nodiscard]] wire::WideStringView textOf(const Key& key) const { return {units_.data() + key.begin, key.length}; }
    void skipCommonBeginning();
    void setHeads();
    // Negative when the first text is the lower one, zero when both are equal.
    [[nodiscard]] int compare(const Key& a, const Key& b) const;
    void findTies();

    wire::WideString units_;
    std::vector<Key> keys_;
    std::vector<Tie> ties_;
};

} // namespace shell
