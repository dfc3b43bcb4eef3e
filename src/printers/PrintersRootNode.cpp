#include "printers/PrintersRootNode.h"

#include "printers/PrinterRegionNode.h"
#include "queues/QueuesRootNode.h"

#include <utility>

namespace printers {

PrintersRootNode::PrintersRootNode(platform::Platform& platform) : RegionsRoot(platform, regions::printersAndQueues) {}

std::shared_ptr<regions::RegionNode> PrintersRootNode::makeRegion(protocol::RegionRecord record) const {
    return std::make_shared<PrinterRegionNode>(platform(), std::move(record));
}

void PrintersRootNode::refreshOthers() {
    if (console() != nullptr) {
        queues::QueuesRootNode::refreshInstance(*console());
    }
}

console::Result PrintersRootNode::OnPaste(console::CSnapInItem& source) {
    const auto* region = dynamic_cast<const PrinterRegionNode*>(&source);
    return region != nullptr ? finishMove(moveHere(*region)) : console::Result::notDone;
}

console::Result PrintersRootNode::OnQueryPaste(const console::CSnapInItem& source) {
    return source.className() == "class PrinterRegionNode" ? console::Result::ok : console::Result::notDone;
}

} // namespace printers
