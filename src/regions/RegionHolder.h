#pragma once

#include "console/NodeBase.h"
#include "protocol/estate/Region.h"
#include "regions/CreateRegionDlg.h"

#include <cstdint>
#include <memory>

namespace regions {

class RegionNode;

// What is the same for all nodes of one tree of regions.
struct RegionTree {
    protocol::RegionKind kind;
    CreateRegionDlg::Mode createMode;
    const char16_t* deleteQuestion;
    const char16_t* notEmptyText; // why a region that holds something is not deleted
};

// The blank at the end of the question is meant.
inline constexpr RegionTree printersAndQueues{
    .kind = protocol::RegionKind::printersAndQueues,
    .createMode = CreateRegionDlg::Mode::printerTree,
    .deleteQuestion = u"Are you sure you want to delete the selected region? ",
    .notEmptyText = u"Cannot delete as the region includes Printers or Follow Printer Queue or Sub Regions!"};

// A node that holds regions: a region itself, or the top of a tree of them.
class RegionHolder : public console::NodeBase {
public:
    // 0 at the top.
    std::int32_t regionId() const { return regionId_; }

protected:
    // The tree outlives the node.
    RegionHolder(platform::Platform& platform, const console::NodeIdentity& identity, const RegionTree& tree,
                 std::int32_t regionId)
        : NodeBase(platform, identity), tree_(tree), regionId_(regionId) {}

    // A node of the tree's class of regions.
    virtual std::shared_ptr<RegionNode> makeRegion(protocol::RegionRecord record) const = 0;
    // What else shows the regions and has to be read again after a move.
    virtual void refreshOthers() {}

    const RegionTree& tree() const { return tree_; }
    const console::NodeArray<RegionNode>& regions() const { return regions_; }
    // Puts a region under this one that the server has just made.
    void addRegion(protocol::RegionRecord record);

    // The regions right below, last of the server's list first.
    console::ChildKind regionsBelow();
    console::Result createRegion(console::CommandOrigin origin);
    // What follows once the dialog has made a region; its id is 0 where it is not known.
    virtual void regionCreated(console::CommandOrigin origin, std::int32_t newRegionId, const wire::WideString& name);
    // Whether a region may stand below another, itself included, is the server's to decide.
    bool moveHere(const RegionNode& region) const;
    // A move presses F5 twice, and twice again once the others have been refreshed; this must stay.
    console::Result finishMove(bool moved);

private:
    const RegionTree& tree_;
    std::int32_t regionId_;
    console::NodeArray<RegionNode> regions_;
};

} // namespace regions
