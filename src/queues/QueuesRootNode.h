#pragma once

#include "regions/RegionsRoot.h"

namespace queues {

// The top of the regions with their queues. There is one in a process: printers and queues change together, so whoever
// changes printers refreshes this node too.
class QueuesRootNode final : public regions::RegionsRoot<QueuesRootNode> {
public:
    static constexpr console::NodeIdentity identity{
        .displayName = u"Queues", .nodeType = console::folderNodeType, .image = 8, .children = 2};

    explicit QueuesRootNode(platform::Platform& platform);
    ~QueuesRootNode() override;

    // Null while there is no tree.
    static QueuesRootNode* instance();
    // Refreshes the instance; does nothing while it has no row in the console's tree.
    static void refreshInstance(console::IConsole& console);

    [[nodiscard]] console::ScopeId scopeId() const { return row(); }

protected:
    [[nodiscard]] std::shared_ptr<regions::RegionNode> makeRegion(protocol::RegionRecord record) const override;

private:
    static QueuesRootNode* instance_;
};

} // namespace queues
