#include "server/inventory/RangeMap.h"

#include "protocol/inventory/IpRange.h"

#include <algorithm>
#include <map>
#include <set>

namespace server {

namespace {

// The number of addresses between the ends.
Address widthOf(const AddressBlock& block) {
    Address width{};
    int borrow = 0;
    for (std::size_t index = width.size(); index-- > 0;) {
        const int difference = block.last[index] - block.first[index] - borrow;
        borrow = difference < 0 ? 1 : 0;
        width[index] = static_cast<std::uint8_t>(difference & 0xFF);
    }
    return width;
}

bool forces(std::int32_t rangeType) {
    return rangeType == protocol::rangeType::forceMigrate || rangeType == protocol::rangeType::forceMigrateLocal;
}

// Empty after the last possible address.
std::optional<Address> next(Address address) {
    for (std::size_t index = address.size(); index-- > 0;) {
        if (++address[index] != 0) {
            return address;
        }
    }
    return std::nullopt;
}

// The ranges sorted by precedence, highest first.
std::vector<ActiveRange> inOrder(const std::vector<ActiveRange>& ranges) {
    struct Ranked {
        bool isWeak = false;
        Address width{};
        ActiveRange range;
    };
    std::vector<Ranked> ranked;
    ranked.reserve(ranges.size());
    for (auto range = ranges.rbegin(); range != ranges.rend(); ++range) {
        ranked.push_back({.isWeak = !forces(range->rangeType), .width = widthOf(range->block), .range = *range});
    }
    std::stable_sort(ranked.begin(), ranked.end(), [](const Ranked& left, const Ranked& right) {
        return std::tie(left.isWeak, left.width) < std::tie(right.isWeak, right.width);
    });
    std::vector<ActiveRange> ordered;
    ordered.reserve(ranked.size());
    for (const auto& one : ranked) {
        ordered.push_back(one.range);
    }
    return ordered;
}

} // namespace

RangeMap::RangeMap(const std::vector<ActiveRange>& ranges) {
    const auto ordered = inOrder(ranges);
    struct Events {
        std::vector<std::size_t> begin;
        std::vector<std::size_t> end;
    };
    std::map<Address, Events> events;
    for (std::size_t rank = 0; rank < ordered.size(); ++rank) {
        events[ordered[rank].block.first].begin.push_back(rank);
        if (const auto behind = next(ordered[rank].block.last)) {
            events[*behind].end.push_back(rank);
        }
    }
    std::set<std::size_t> open;
    for (const auto& [address, event] : events) {
        open.insert(event.begin.begin(), event.begin.end());
        for (const auto rank : event.end) {
            open.erase(rank);
        }
        stretches_.push_back({.first = address, .rangeType = {}});
        if (!open.empty()) {
            stretches_.back().rangeType = ordered[*open.begin()].rangeType;
        }
    }
}

std::optional<std::int32_t> RangeMap::at(const Address& address) const {
    const auto after = std::upper_bound(stretches_.begin(), stretches_.end(), address,
                                        [](const Address& left, const Stretch& right) { return left < right.first; });
    return after == stretches_.begin() ? std::nullopt : std::prev(after)->rangeType;
}

} // namespace server
