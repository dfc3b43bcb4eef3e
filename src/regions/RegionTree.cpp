#include "regions/RegionTree.h"

#include "client/CQVXAdminClass.h"
#include "client/ConnectFailed.h"
#include "forms/Questions.h"
#include "regions/RegionsInTree.h"

#include <utility>
#include <vector>

namespace regions {

namespace {

// In reverse of the server's order, as the tree of the console shows them.
std::vector<protocol::RegionRecord> readAllRegions() {
    client::CQVXAdminClass client;
    if (!client.listRegions(protocol::RegionKind::printersAndQueues)) {
        throw client::ConnectFailed();
    }
    std::vector<protocol::RegionRecord> all;
    for (protocol::RegionRecord region; client.nextRegion(region.id, region.parentId, region.name); region = {}) {
        all.push_back(std::move(region));
    }
    return all;
}

} // namespace

void RegionTree::onInitDialog() {
    for (auto& [record, parent] : inTreeOrder(readAllRegions())) {
        tree.addItem({.text = std::move(record.name), .parameter = record.id, .parent = parent});
    }
}

void RegionTree::onOk() {
    const auto selection = tree.selection();
    if (!selection) {
        forms::refuseBlank(tree, u"Please select a region.", u"Warning", platform::boxStyle::iconInformation);
        return;
    }
    const auto& region = tree.items()[*selection];
    selectedRegionId = static_cast<std::int32_t>(region.parameter);
    selectedRegionName = region.text;
    EndDialog(forms::idOk);
}

} // namespace regions
