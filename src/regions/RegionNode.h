#pragma once

#include "regions/RegionHolder.h"

#include <string>

namespace regions {

// A region in one of the trees of regions. Derived classes define what else it holds.
class RegionNode : public RegionHolder {
public:
    [[nodiscard]] std::string refreshKey() const override;

protected:
    RegionNode(platform::Platform& platform, const console::NodeIdentity& identity, const TreeOfRegions& tree,
               protocol::RegionRecord record);

    [[nodiscard]] console::RowReading rowReading() const override { return console::RowReading::onEveryShow; }
    void regionCreated(console::CommandOrigin origin, std::int32_t newRegionId, const wire::WideString& name) override;
    console::Result OnRename(console::IConsole& console, const wire::WideString& newName) override;

    // Asks, checks whether the region is empty, and deletes it.
    console::Result deleteRegion(console::CommandOrigin origin);
    // Opens the rules that apply in the region.
    console::Result regionRules(console::CommandOrigin origin);
};

} // namespace regions
