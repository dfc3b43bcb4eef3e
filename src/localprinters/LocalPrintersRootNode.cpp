#include "localprinters/LocalPrintersRootNode.h"

#include "localprinters/LocalPrinterRegionNode.h"

#include <utility>

namespace localprinters {

LocalPrintersRootNode::LocalPrintersRootNode(platform::Platform& platform)
    : RegionsRoot(platform, regions::localPrinters) {}

std::shared_ptr<regions::RegionNode> LocalPrintersRootNode::makeRegion(protocol::RegionRecord record) const {
    return std::make_shared<LocalPrinterRegionNode>(platform(), std::move(record));
}

std::span<const console::NodeCommand<LocalPrintersRootNode>> LocalPrintersRootNode::commands() const {
    static constexpr std::array table{
        create, console::NodeCommand<LocalPrintersRootNode>{.entry = deleteLocalRegionEntry,
                                                            .run = &LocalPrintersRootNode::deleteTop}};
    return table;
}

// The top has the entry of its regions, with a text of its own, and asks the server to delete the region 0, which no
// server has. This must stay.
console::Result LocalPrintersRootNode::deleteTop(console::CommandOrigin /*origin*/) {
    if (!deleteOnServer(u"Cannot delete as the region includes the printer")) {
        return console::Result::notDone;
    }
    PressRefreshKey();
    return console::Result::ok;
}

} // namespace localprinters
