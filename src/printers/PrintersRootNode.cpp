#include "printers/PrintersRootNode.h"

#include "printers/PrinterRegionNode.h"
#include "queues/QueuesRootNode.h"

#include <array>
#include <utility>

namespace printers {
namespace {

constexpr std::int32_t topOfTheTree = 0;

} // namespace

PrintersRootNode::PrintersRootNode(platform::Platform& platform)
    : CBaseNodeItem(platform, regions::printersAndQueues, topOfTheTree) {}

std::shared_ptr<regions::RegionNode> PrintersRootNode::makeRegion(protocol::RegionRecord record) const {
    return std::make_shared<PrinterRegionNode>(platform(), std::move(record));
}

void PrintersRootNode::refreshOthers() {
    if (console() != nullptr) {
        queues::QueuesRootNode::refreshInstance(*console());
    }
}

std::span<const console::Column> PrintersRootNode::columns() const {
    static constexpr std::array titles{console::Column{u"Region Name", 2}};
    return titles;
}

std::span<const console::NodeCommand<PrintersRootNode>> PrintersRootNode::commands() const {
    static constexpr std::array table{console::NodeCommand<PrintersRootNode>{
        .entry{u"Create region", u"To create a new region", 247}, .run = &PrintersRootNode::createRegion}};
    return table;
}

std::vector<console::NodeBase*> PrintersRootNode::rows() const {
    return pointersTo(regions());
}

console::Result PrintersRootNode::OnPaste(console::CSnapInItem& source) {
    const auto* region = dynamic_cast<const PrinterRegionNode*>(&source);
    return region != nullptr ? finishMove(moveHere(*region)) : console::Result::notDone;
}

console::Result PrintersRootNode::OnQueryPaste(const console::CSnapInItem& source) {
    return source.className() == "class PrinterRegionNode" ? console::Result::ok : console::Result::notDone;
}

} // namespace printers
