#pragma once

#include "console/NodeBase.h"
#include "regions/TreeOfRegions.h"

#include <cstdint>
#include <memory>

namespace regions {

class RegionNode;

// The command and the column that all trees of regions have in common.
inline constexpr console::MenuEntry createRegionEntry{u"Create region", u"To create a new region", 247};
inline constexpr console::Column regionNameColumn{u"Region Name", 2};

// A node that holds regions: a region itself, or the top of a tree of them.
class RegionHolder : public console::NodeBase {
public:
    // 0 at the top.
    [[nodiscard]] std::int32_t regionId() const { return regionId_; }

protected:
    // The tree outlives the node.
    RegionHolder(platform::Platform& platform, const console::NodeIdentity& identity, const TreeOfRegions& tree,
                 std::int32_t regionId)
        : NodeBase(platform, identity), tree_(tree), regionId_(regionId) {}

    // A node of the tree's class of regions.
    virtual std::shared_ptr<RegionNode> makeRegion(protocol::RegionRecord record) const = 0;
    // Refreshes whatever else shows the regions, after a move.
    virtual void refreshOthers() {}

    const TreeOfRegions& tree() const { return tree_; }
    const console::NodeArray<RegionNode>& regions() const { return regions_; }
    // Adds a region that the server has just made under this one.
    void addRegion(protocol::RegionRecord record);

    // The regions directly below, in reverse of the server's order.
    console::ChildKind regionsBelow();
    console::Result createRegion(console::CommandOrigin origin);
    // Called once the dialog has made a region; its id is 0 where it is not known.
    virtual void regionCreated(console::CommandOrigin origin, std::int32_t newRegionId, const wire::WideString& name);
    // Asks, checks that the region is empty, and deletes it on the server. The text tells why it is not deleted
    // otherwise.
    bool deleteOnServer(const char16_t* notEmptyText) const;
    // The server decides whether a region may be moved below another, or below itself.
    bool moveHere(const RegionNode& region) const;
    // A move presses F5 twice, and twice again once the others have been refreshed; this must stay.
    console::Result finishMove(bool moved);

private:
    const TreeOfRegions& tree_;
    std::int32_t regionId_;
    console::NodeArray<RegionNode> regions_;
};

} // namespace regions
