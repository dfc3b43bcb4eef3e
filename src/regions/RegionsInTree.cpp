#include "regions/RegionsInTree.h"

#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace regions {
namespace {

constexpr std::int32_t topOfTheTree = 0;

// Puts regions in tree order, each once.
class TreeOrder {
public:
    explicit TreeOrder(std::vector<protocol::RegionRecord> all) : all_(std::move(all)), placed_(all_.size(), false) {
        for (std::size_t region = 0; region < all_.size(); ++region) {
            ids_.insert(all_[region].id);
            below_[all_[region].parentId].push_back(region);
        }
        ordered_.reserve(all_.size());
    }

    std::vector<RegionInTree> take() && {
        for (std::size_t region = 0; region < all_.size(); ++region) {
            if (isTop(all_[region])) {
                placeWithAllBelow(region);
            }
        }
        for (std::size_t region = 0; region < all_.size(); ++region) {
            placeWithAllBelow(region); // of a ring, if it isn't placed yet
        }
        return std::move(ordered_);
    }

private:
    [[nodiscard]] bool isTop(const protocol::RegionRecord& region) const {
        return region.parentId == topOfTheTree || !ids_.contains(region.parentId);
    }

    // With a stack of its own, since a server may send a chain of any length.
    void placeWithAllBelow(std::size_t region) {
        std::vector<std::pair<std::size_t, std::optional<std::size_t>>> waiting{{region, std::nullopt}};
        while (!waiting.empty()) {
            const auto [next, parent] = waiting.back();
            waiting.pop_back();
            if (placed_[next]) {
                continue;
            }
            placed_[next] = true;
            ordered_.push_back({.record = std::move(all_[next]), .parent = parent});
            const auto below = takeBelow(ordered_.back().record.id);
            for (auto child = below.rbegin(); child != below.rend(); ++child) {
                waiting.emplace_back(*child, ordered_.size() - 1);
            }
        }
    }

    // If two regions have the same id, the first one gets all regions below it.
    std::vector<std::size_t> takeBelow(std::int32_t id) {
        const auto found = id == topOfTheTree ? below_.end() : below_.find(id);
        return found == below_.end() ? std::vector<std::size_t>() : std::exchange(found->second, {});
    }

    std::vector<protocol::RegionRecord> all_;
    std::vector<bool> placed_;
    std::unordered_set<std::int32_t> ids_;
    std::unordered_map<std::int32_t, std::vector<std::size_t>> below_; // by the id of the parent
    std::vector<RegionInTree> ordered_;
};

} // namespace

std::vector<RegionInTree> inTreeOrder(std::vector<protocol::RegionRecord> all) {
    return TreeOrder(std::move(all)).take();
}

} // namespace regions
