#pragma once

#include "console/CBaseNodeItem.h"
#include "queues/QueueNode.h"
#include "regions/RegionNode.h"

namespace queues {

// A region with its sub-regions, and with its queues or its follow-print queues.
class QueueRegionNode final : public console::CBaseNodeItem<QueueRegionNode, regions::RegionNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Region", .image = 0, .openImage = 1, .children = 2};

    QueueRegionNode(platform::Platform& platform, protocol::RegionRecord record, QueueMode mode);

protected:
    [[nodiscard]] std::shared_ptr<regions::RegionNode> makeRegion(protocol::RegionRecord record) const override;
    std::vector<console::ChildKind> childKinds() override;
    // Those of regions only while it holds regions and no queues.
    [[nodiscard]] std::span<const console::Column> columns() const override;
    [[nodiscard]] std::span<const console::NodeCommand<QueueRegionNode>> commands() const override;
    [[nodiscard]] std::span<const console::VerbChoice> verbs() const override;
    [[nodiscard]] std::vector<console::NodeBase*> rows() const override;

private:
    [[nodiscard]] bool isOfFollowPrint() const { return mode_ == QueueMode::followPrint; }
    console::Result addFollowQueue(console::CommandOrigin origin);
    bool listQueues(std::vector<protocol::PrinterRecord>& records) const;

    QueueMode mode_;
    console::NodeArray<QueueNode> queues_;
};

} // namespace queues
