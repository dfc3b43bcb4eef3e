#include "shell/SortKeys.h"

#include "shell/NaturalOrder.h"

#include <algorithm>

namespace shell {

void SortKeys::add(wire::WideStringView text) {
    if (keys_.empty()) { // most texts are as long as the first one
        units_.reserve(keys_.capacity() * std::min<std::size_t>(text.size() + 8, 64));
    }
    const auto begin = units_.size();
    appendNaturalKey(units_, text);
    addKey(begin);
}

void SortKeys::add(std::int64_t number) {
    const auto begin = units_.size();
    const auto bits = static_cast<std::uint64_t>(number) ^ (std::uint64_t{1} << 63U); // negative numbers first
    for (unsigned shift = 64; shift != 0;) {
        shift -= 16;
        units_.push_back(static_cast<char16_t>(bits >> shift & 0xFFFFU));
    }
    addKey(begin);
}

void SortKeys::addKey(std::size_t begin) {
    keys_.push_back({.begin = begin,
                     .length = static_cast<std::uint32_t>(units_.size() - begin),
                     .place = static_cast<std::uint32_t>(keys_.size())});
}

std::vector<std::uint32_t> SortKeys::sorted(bool ascending) {
    skipCommonBeginning();
    setHeads();
    const auto stands = [this, ascending](const Key& a, const Key& b) {
        const int compared = ascending ? compare(a, b) : compare(b, a);
        return compared != 0 ? compared < 0 : a.place < b.place;
    };
    if (!std::ranges::is_sorted(keys_, stands)) { // many texts are added in order
        std::ranges::sort(keys_, stands);
    }
    findTies();
    std::vector<std::uint32_t> places(keys_.size());
    std::ranges::transform(keys_, places.begin(), &Key::place);
    return places;
}

void SortKeys::findTies() {
    ties_.clear();
    for (std::size_t begin = 0; begin < keys_.size();) {
        auto end = begin + 1;
        while (end < keys_.size() && compare(keys_[begin], keys_[end]) == 0) {
            ++end;
        }
        if (end - begin > 1) {
            ties_.push_back({.begin = begin, .length = end - begin});
        }
        begin = end;
    }
}

void SortKeys::skipCommonBeginning() {
    if (keys_.empty()) {
        return;
    }
    auto common = textOf(keys_.front());
    for (const Key& key : keys_) {
        const auto text = textOf(key);
        const auto length = std::min(common.size(), text.size());
        const auto differs = std::mismatch(common.begin(), common.begin() + length, text.begin()).first;
        common = common.substr(0, static_cast<std::size_t>(differs - common.begin()));
    }
    for (Key& key : keys_) {
        key.begin += common.size();
        key.length -= static_cast<std::uint32_t>(common.size());
    }
}

void SortKeys::setHeads() {
    constexpr std::size_t headUnits = sizeof(Key::head) / sizeof(char16_t);
    for (Key& key : keys_) {
        const auto text = textOf(key);
        for (std::size_t unit = 0; unit < headUnits; ++unit) {
            key.head = key.head << 16U | (unit < text.size() ? text[unit] : 0U);
        }
    }
}

int SortKeys::compare(const Key& a, const Key& b) const {
    if (a.head != b.head) {
        return a.head < b.head ? -1 : 1;
    }
    return textOf(a).compare(textOf(b));
}

} // namespace shell
