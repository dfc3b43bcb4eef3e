#include "queues/QueuesRootNode.h"

namespace queues {

QueuesRootNode* QueuesRootNode::instance_ = nullptr;

QueuesRootNode::QueuesRootNode(platform::Platform& platform) : CBaseNodeItem(platform) {
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

console::Result QueuesRootNode::OnExpand(console::ExpandCode code, console::IConsole& console,
                                         console::ScopeId scopeId) {
    beginExpand(code, console, scopeId);
    return console::Result::ok;
}

void QueuesRootNode::refreshInstance(console::IConsole& console) {
    if (instance_ != nullptr && instance_->scopeId() != 0) {
        instance_->RefreshNode(console, instance_->scopeId(), console);
    }
}

} // namespace queues
