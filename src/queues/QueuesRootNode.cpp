#include "queues/QueuesRootNode.h"

#include "queues/QueueRegionNode.h"

#include <utility>

namespace queues {

QueuesRootNode* QueuesRootNode::instance_ = nullptr;

QueuesRootNode::QueuesRootNode(platform::Platform& platform) : RegionsRoot(platform, regions::printersAndQueues) {
    instance_ = this;
}

QueuesRootNode::~QueuesRootNode() {
    if (instance_ == this) {
        instance_ = nullptr;
    }
}

QueuesRootNode* QueuesRootNode::instance() {
    return instance_;
}

std::shared_ptr<regions::RegionNode> QueuesRootNode::makeRegion(protocol::RegionRecord record) const {
    return std::make_shared<QueueRegionNode>(platform(), std::move(record), QueueMode::queue);
}

void QueuesRootNode::refreshInstance(console::IConsole& console) {
    if (instance_ != nullptr && instance_->scopeId() != 0) {
        instance_->RefreshNode(console, instance_->scopeId(), console);
    }
}

} // namespace queues
