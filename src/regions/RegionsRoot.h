#pragma once

#include "console/CBaseNodeItem.h"
#include "regions/RegionNode.h"

#include <array>
#include <span>
#include <vector>

namespace regions {

// The base of the top of a tree of regions, as RegionsRoot<Root>: it lists the regions at the top and makes new ones.
// Root says what its regions are.
template <class Root>
class RegionsRoot : public console::CBaseNodeItem<Root, RegionHolder> {
protected:
    RegionsRoot(platform::Platform& platform, const TreeOfRegions& tree)
        : console::CBaseNodeItem<Root, RegionHolder>(platform, tree, topOfTheTree) {}

    std::vector<console::ChildKind> childKinds() override { return {this->regionsBelow()}; }
    [[nodiscard]] std::span<const console::Column> columns() const override {
        static constexpr std::array titles{regionNameColumn};
        return titles;
    }
    [[nodiscard]] std::span<const console::NodeCommand<Root>> commands() const override {
        static constexpr std::array table{create};
        return table;
    }
    [[nodiscard]] std::vector<console::NodeBase*> rows() const override { return this->pointersTo(this->regions()); }

    static constexpr console::NodeCommand<Root> create{.entry = createRegionEntry, .run = &RegionsRoot::createRegion};

private:
    static constexpr std::int32_t topOfTheTree = 0;
};

} // namespace regions
