#include "printers/PrintersRootNode.h"

#include "client/CQVXAdminClass.h"
#include "queues/QueuesRootNode.h"
#include "regions/CreateRegionDlg.h"
#include "regions/NodePointers.h"
#include "regions/RegionNodes.h"

#include <array>

namespace printers {
namespace {

constexpr std::int32_t createRegionCommand = 247;
constexpr std::int32_t topOfTheTree = 0;

} // namespace

PrintersRootNode::PrintersRootNode(platform::Platform& platform) : CBaseNodeItem(platform) {}

console::Result PrintersRootNode::OnExpand(console::ExpandCode code, console::IConsole& console,
                                           console::ScopeId scopeId) {
    if (!beginExpand(code, console, scopeId)) {
        return console::Result::ok;
    }
    client::CQVXAdminClass client;
    std::vector<protocol::RegionRecord> below;
    if (!regions::readRegionsBelow(client, protocol::RegionKind::printersAndQueues, topOfTheTree, below)) {
        return console::Result::notDone;
    }
    replaceChildren(regions_, regions::makeRegionNodes<PrinterRegionNode>(platform(), *this, std::move(below)));
    for (const auto& region : regions_) {
        insertChild(console, *region);
    }
    return console::Result::ok;
}

std::span<const console::Column> PrintersRootNode::columns() const {
    static constexpr std::array titles{console::Column{u"Region Name", 2}};
    return titles;
}

std::span<const console::MenuEntry> PrintersRootNode::menu() const {
    static constexpr std::array entries{
        console::MenuEntry{u"Create region", u"To create a new region", createRegionCommand}};
    return entries;
}

std::vector<console::NodeBase*> PrintersRootNode::rows() const {
    return regions::nodePointers(regions_);
}

console::Result PrintersRootNode::runCommand(std::int32_t commandId, console::CommandOrigin origin) {
    return commandId == createRegionCommand ? createRegion(origin) : console::Result::notDone;
}

console::Result PrintersRootNode::createRegion(console::CommandOrigin origin) {
    regions::CreateRegionDlg dialog(platform(), topOfTheTree, regions::CreateRegionDlg::Mode::printerTree);
    if (runModal(dialog) != forms::idOk) {
        return console::Result::notDone;
    }
    if (origin == console::CommandOrigin::result) {
        press({platform::Key::tab, platform::Key::tab});
    } else if (console() != nullptr) {
        console()->SelectScopeItem(row());
        PressRefreshKey();
    }
    return console::Result::ok;
}

// A move presses F5 twice, and twice again once the queues have been refreshed; this must stay.
console::Result PrintersRootNode::OnPaste(console::CSnapInItem& source) {
    const auto* region = dynamic_cast<const PrinterRegionNode*>(&source);
    if (region == nullptr) {
        return console::Result::notDone;
    }
    client::CQVXAdminClass client;
    const bool moved = client.moveRegion(protocol::RegionKind::printersAndQueues, region->regionId(), topOfTheTree);
    if (moved) {
        PressRefreshKey();
        PressRefreshKey();
    }
    if (console() != nullptr) {
        queues::QueuesRootNode::refreshInstance(*console());
    }
    PressRefreshKey();
    PressRefreshKey();
    return moved ? console::Result::ok : console::Result::notDone;
}

console::Result PrintersRootNode::OnQueryPaste(const console::CSnapInItem& source) {
    return source.className() == "class PrinterRegionNode" ? console::Result::ok : console::Result::notDone;
}

} // namespace printers
